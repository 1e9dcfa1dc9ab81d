#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>
#include <vector>

namespace vendrel {

/// A control under the name the form knows it by, and the name that is read out for it.
template <class Control>
[[nodiscard]] Control* Named(const char* name, const QString& spoken) {
    auto* control = new Control;
    control->setObjectName(QString::fromLatin1(name));
    control->setAccessibleName(spoken);
    return control;
}

/// A label for a value that tells all by itself: what it shows is what is read out for it.
[[nodiscard]] inline QLabel* Value(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// A label whose underlined letter moves the keyboard to `control`.
[[nodiscard]] inline QLabel* LabelFor(QWidget& control, const QString& text) {
    auto* label = new QLabel(text);
    label->setBuddy(&control);
    return label;
}

/// The order in which the Tab key goes through the controls.
inline void SetTabOrder(const std::vector<QWidget*>& controls) {
    QWidget* previous = nullptr;
    for (QWidget* control : controls) {
        if (previous != nullptr) {
            QWidget::setTabOrder(previous, control);
        }
        previous = control;
    }
}

}  // namespace vendrel
