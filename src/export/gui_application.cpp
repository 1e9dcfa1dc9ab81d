#include "export/gui_application.h"

#include <QtGui/QGuiApplication>

namespace vendrel {

GuiApplication::GuiApplication() {
    static int argc = 1;
    static char name[] = "vendrel";
    static char* argv[] = {name, nullptr};
    if (QGuiApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QGuiApplication>(argc, argv);
    }
}

GuiApplication::~GuiApplication() = default;

}  // namespace vendrel
