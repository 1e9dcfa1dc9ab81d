#include "export/plain_text.h"

#include "support/text_file.h"

namespace vendrel {

QString PlainText(const std::string& name) {
    QString text = QString::fromStdString(ToUtf8(name));
    text.removeIf([](QChar c) {
        return c.category() == QChar::Other_Control || c.unicode() == 0xFFFE ||
               c.unicode() == 0xFFFF;
    });
    return text;
}

}  // namespace vendrel
