#include "export/gui_application.h"

#include <QtCore/QtGlobal>
#include <QtGui/QGuiApplication>
#include <cstdio>

namespace vendrel {
namespace {

// The toolkit remarks on whatever it misses of a desktop. Who makes kits on a server has none, and
// wants to hear of errors alone.
void PassErrors(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
    }
}

}  // namespace

GuiApplication::GuiApplication() {
    static int argc = 1;
    static char name[] = "vendrel";
    static char* argv[] = {name, nullptr};
    if (QGuiApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(PassErrors);
        application_ = std::make_unique<QGuiApplication>(argc, argv);
    }
}

GuiApplication::~GuiApplication() = default;

}  // namespace vendrel
