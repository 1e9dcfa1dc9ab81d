#pragma once

#include <QAbstractButton>
#include <QPushButton>
#include <QToolButton>
#include <functional>

#include "desktop/named.h"
#include "forms/touch_up_form.h"

namespace vendrel {

/// Starts, through the edge, what only an open editor can do.
using EditorWork = std::function<void(const std::function<void(TouchUpForm&)>&)>;

/// A handler of the editor's form.
using EditorHandler = void (TouchUpForm::*)();

/// Has a button start a handler.
inline void OnClick(QAbstractButton* button, const EditorWork& work, EditorHandler handler) {
    QObject::connect(button, &QAbstractButton::clicked, button, [work, handler] {
        work([handler](TouchUpForm& form) { (form.*handler)(); });
    });
}

/// Enter is the picture's key, and the keyboard stays with it when a button is clicked.
template <class Button>
[[nodiscard]] Button* EditorButton(const char* name, const QString& caption, const QString& hint) {
    auto* button = Named<Button>(name, hint);
    button->setText(caption);
    button->setToolTip(hint);
    button->setFocusPolicy(Qt::TabFocus);
    if constexpr (std::is_base_of_v<QPushButton, Button>) {
        button->setAutoDefault(false);
    }
    return button;
}

/// One that starts a handler.
template <class Button = QToolButton>
[[nodiscard]] Button* EditorButton(const char* name, const QString& caption, const QString& hint,
                                   const EditorWork& work, EditorHandler handler) {
    auto* button = EditorButton<Button>(name, caption, hint);
    OnClick(button, work, handler);
    return button;
}

}  // namespace vendrel
