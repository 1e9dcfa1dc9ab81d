#include "export/kit_page.h"

#include <QtCore/QFile>

#include "export/page_data.h"
#include "export/plain_text.h"
#include "export/save_drawn.h"
#include "output/chart_contents.h"
#include "support/error.h"

// A macro that has to stand outside of every namespace.
static void TakeUpPageParts() {
    Q_INIT_RESOURCE(page);
}

namespace vendrel {
namespace {

QByteArray PagePart(const QString& name) {
    QFile part(":/page/" + name);
    if (!part.open(QIODevice::ReadOnly)) {
        throw Error("The program lacks a part of its page, " + name.toStdString() +
                    ". Build it anew.");
    }
    return part.readAll();
}

// Fills the gaps {{name}} of the frame; what comes in is looked through for none.
template <class Fill>
QByteArray FilledPage(const QByteArray& frame, Fill fill) {
    QByteArray page;
    qsizetype from = 0;
    for (qsizetype at = frame.indexOf("{{"); at >= 0; at = frame.indexOf("{{", from)) {
        const qsizetype end = frame.indexOf("}}", at);
        page += frame.sliced(from, at - from) + fill(frame.sliced(at + 2, end - at - 2));
        from = end + 2;
    }
    return page + frame.sliced(from);
}

// By its order, where there is one.
QString TitleOf(PlannedKit& kit) {
    const std::string& order = kit.Settings().Shop.Order;
    const WorkState& state = kit.Place().State;
    return PlainText((order.empty() ? "" : "Order " + order + ": ") + KitTitle(state, state));
}

}  // namespace

void WriteKitPage(PlannedKit& kit, const Target& target) {
    const Workplace& place = kit.Place();
    place.Screen.SetCaption("Drawing the Plan");
    const PrintSymbols symbols(kit.Marks());
    TakeUpPageParts();
    const QString title = TitleOf(kit);
    const QByteArray page = FilledPage(PagePart("page.html"), [&](const QByteArray& gap) {
        return gap == "title"  ? title.toHtmlEscaped().toUtf8()
               : gap == "data" ? PageData(place.State, kit.InOnePiece(), symbols, title)
                               : PagePart(QString::fromLatin1(gap));
    });
    SaveDrawn(place.Screen, page, target);
}

}  // namespace vendrel
