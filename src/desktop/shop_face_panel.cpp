#include "desktop/shop_face_panel.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMessageBox>
#include <algorithm>

#include "desktop/named.h"
#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "export/print_fonts.h"

namespace vendrel {
namespace {

constexpr int kAddressLines = 4;  // seen at once
constexpr int kMostBytes = 4;     // of a letter

QHBoxLayout* SideBySideRow(QWidget* first, QWidget* second) {
    auto* row = new QHBoxLayout;
    row->addWidget(first);
    row->addWidget(second);
    row->addStretch(1);
    return row;
}

std::vector<std::string> LinesOf(const QString& text) {
    std::vector<std::string> lines;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        if (const QString words = line.simplified();
            !words.isEmpty() && lines.size() < kMostAddressLines) {
            lines.push_back(words.toStdString());
        }
    }
    return lines;
}

// A button that names the file it chose, or asks for one.
void ShowFile(QPushButton& button, QPushButton& none, const std::filesystem::path& file,
              const QString& asks) {
    const QString name = QFileInfo(Text(file.string())).fileName();
    button.setText(name.isEmpty() ? asks : QString(name).replace(u'&', QStringLiteral("&&")));
    none.setEnabled(!name.isEmpty());
}

}  // namespace

ShopFacePanel::ShopFacePanel()
    : maker_(Named<QLineEdit>("KitMaker", tr("Your name on the pages"))),
      logo_(Named<QPushButton>("KitLogo", tr("Choose a logo for the pages"))),
      noLogo_(Named<QPushButton>("NoKitLogo", tr("No logo"))),
      address_(Named<QPlainTextEdit>("KitAddress", tr("Address on the cover, up to six lines"))),
      color_(Named<QPushButton>("KitAccent", tr("Choose a color for headings and rules"))),
      noColor_(Named<QPushButton>("NoKitAccent", tr("No color"))),
      order_(Named<QLineEdit>("KitOrder", tr("Number of the order"))),
      leaflet_(Named<QPushButton>("KitLeaflet", tr("Choose a text for pages of its own"))),
      noLeaflet_(Named<QPushButton>("NoKitLeaflet", tr("No leaflet"))) {
    Name();
    AddRows(*new QFormLayout(this));
    Connect();
}

void ShopFacePanel::Name() {
    maker_->setPlaceholderText(tr("Your name"));
    noLogo_->setText(tr("N&o logo"));
    address_->setTabChangesFocus(true);
    address_->setPlaceholderText(tr("Lines for the cover"));
    address_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    address_->setFixedHeight(kAddressLines * fontMetrics().lineSpacing() +
                             2 * (address_->frameWidth() + 4));
    color_->setText(tr("Co&lor..."));
    noColor_->setText(tr("Blac&k"));
    order_->setMaxLength(static_cast<int>(kLongestOrder) / kMostBytes);
    order_->setToolTip(tr("On the cover with a code to scan, and on every page"));
    leaflet_->setToolTip(
        tr("A text file; {order}, {title}, {paints}, {canvas} and {hours} are filled in."));
    noLeaflet_->setText(tr("No lea&flet"));
}

void ShopFacePanel::AddRows(QFormLayout& rows) {
    rows.addRow(LabelFor(*maker_, tr("&Maker")), maker_);
    rows.addRow(QString(), SideBySideRow(logo_, noLogo_));
    rows.addRow(LabelFor(*address_, tr("&Address")), address_);
    rows.addRow(tr("Headings"), SideBySideRow(color_, noColor_));
    rows.addRow(LabelFor(*order_, tr("Or&der")), order_);
    rows.addRow(tr("Leaflet"), SideBySideRow(leaflet_, noLeaflet_));
}

void ShopFacePanel::Connect() {
    const auto change = [this](QPushButton* button, void (*edit)(PlanSettings&)) {
        connect(button, &QPushButton::clicked, this, [this, edit] { emit Changed(edit); });
    };
    connect(maker_, &QLineEdit::textEdited, this, [this](const QString& text) {
        emit Changed([text](PlanSettings& plan) { plan.Maker = text.toStdString(); });
    });
    connect(order_, &QLineEdit::textEdited, this, [this](const QString& text) {
        emit Changed(
            [text](PlanSettings& plan) { plan.Shop.Order = text.simplified().toStdString(); });
    });
    connect(address_, &QPlainTextEdit::textChanged, this, &ShopFacePanel::TakeAddress);
    connect(logo_, &QPushButton::clicked, this, &ShopFacePanel::ChooseLogo);
    connect(color_, &QPushButton::clicked, this, &ShopFacePanel::ChooseAccent);
    connect(leaflet_, &QPushButton::clicked, this, &ShopFacePanel::ChooseLeaflet);
    change(noLogo_, [](PlanSettings& plan) { plan.Logo.clear(); });
    change(noColor_, [](PlanSettings& plan) { plan.Shop.Accent.reset(); });
    change(noLeaflet_, [](PlanSettings& plan) { plan.Shop.Leaflet.clear(); });
}

void ShopFacePanel::TakeAddress() {
    emit Changed([lines = LinesOf(address_->toPlainText())](PlanSettings& plan) {
        plan.Shop.Address = lines;
    });
}

void ShopFacePanel::ChooseLogo() {
    const QString file = QFileDialog::getOpenFileName(this, tr("A Logo for the Pages"), {},
                                                      tr("Pictures (*.png *.jpg *.jpeg *.bmp)"));
    if (!file.isEmpty()) {
        emit Changed([&file](PlanSettings& plan) { plan.Logo = file.toStdString(); });
    }
}

void ShopFacePanel::ChooseLeaflet() {
    const QString file =
        QFileDialog::getOpenFileName(this, tr("A Leaflet for the Kit"), {}, tr("Texts (*.txt)"));
    if (!file.isEmpty()) {
        emit Changed([&file](PlanSettings& plan) { plan.Shop.Leaflet = file.toStdString(); });
    }
}

void ShopFacePanel::ChooseAccent() {
    const QColor start = accent_ ? ToQt(*accent_) : QColor(0x1F, 0x5F, 0xA8);
    const QColor picked = QColorDialog::getColor(start, this, tr("A Color for the Headings"));
    if (!picked.isValid()) {
        return;
    }
    const Color color = Rgb(picked.red(), picked.green(), picked.blue());
    if (!ReadsOnWhite(color)) {
        QMessageBox::information(
            this, tr("Vendrel"),
            tr("This color is hard to read on white paper. Choose a darker one."));
        return;
    }
    emit Changed([color](PlanSettings& plan) { plan.Shop.Accent = color; });
}

std::vector<QWidget*> ShopFacePanel::Controls() const {
    return {maker_, logo_, noLogo_, address_, color_, noColor_, order_, leaflet_, noLeaflet_};
}

void ShopFacePanel::Mirror(const PlanSettings& settings) {
    for (const auto& [line, text] :
         {std::pair(maker_, settings.Maker), std::pair(order_, settings.Shop.Order)}) {
        // What is typed may end with a blank that a name is about to follow.
        if (line->text().simplified() != Text(text).simplified()) {
            line->setText(Text(text));
        }
    }
    if (LinesOf(address_->toPlainText()) != settings.Shop.Address) {
        QStringList lines;
        for (const std::string& line : settings.Shop.Address) {
            lines.append(Text(line));
        }
        const QSignalBlocker quiet(address_);
        address_->setPlainText(lines.join(QLatin1Char('\n')));
    }
    ShowFile(*logo_, *noLogo_, settings.Logo, tr("Lo&go..."));
    ShowFile(*leaflet_, *noLeaflet_, settings.Shop.Leaflet, tr("Leafle&t..."));
    accent_ = settings.Shop.Accent;
    color_->setIcon(accent_ ? SwatchIcon(*accent_) : QIcon());
    noColor_->setEnabled(accent_.has_value());
}

}  // namespace vendrel
