#include "export/kit_page.h"

#include <QtCore/QFile>

#include "export/page_data.h"
#include "export/plain_text.h"
#include "export/print_symbols.h"
#include "output/chart_contents.h"
#include "support/error.h"
#include "support/whole_file.h"

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

}  // namespace

void WriteKitPage(const Workplace& place, const PlanSettings& settings, const Target& target) {
    place.Screen.SetCaption("Drawing the Plan");
    const PrintSymbols symbols(settings.Symbols, place.State->PaintCount);
    const PrintPlan plan =
        MakeUncutPlan(place.State, place.Frames->WorkFrame.Picture, settings, symbols.Aspects());
    TakeUpPageParts();
    const QByteArray page = FilledPage(PagePart("page.html"), [&](const QByteArray& gap) {
        return gap == "title"
                   ? PlainText(KitTitle(place.State, place.State)).toHtmlEscaped().toUtf8()
               : gap == "data" ? PageData(place.State, plan, symbols)
                               : PagePart(QString::fromLatin1(gap));
    });
    place.Screen.SetCaption("Saving File, Please Wait....");
    WriteWholeFile(target, {page.constData(), static_cast<std::size_t>(page.size())});
}

}  // namespace vendrel
