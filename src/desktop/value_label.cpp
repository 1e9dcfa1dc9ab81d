#include "desktop/value_label.h"

namespace vendrel {

ValueLabel::ValueLabel(const char* name, const QString& spoken) : spoken_(spoken) {
    setObjectName(QString::fromLatin1(name));
    setAccessibleName(spoken);
    setTextFormat(Qt::PlainText);
}

void ValueLabel::Show(const QString& value) {
    if (value == text()) {
        return;
    }
    setText(value);
    setAccessibleName(value.isEmpty() ? spoken_ : spoken_ + QStringLiteral(": ") + value);
}

void ValueLabel::WrapWhole() {
    setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

}  // namespace vendrel
