#include "export/order_code.h"

#include <qrencode.h>

#include <memory>

#include "support/error.h"

namespace vendrel {
namespace {

constexpr int kRim = 4;  // modules of white

struct CodeFreer {
    void operator()(QRcode* code) const { QRcode_free(code); }
};

}  // namespace

OrderCode::OrderCode(const std::string& number) {
    if (number.empty()) {
        return;
    }
    const std::unique_ptr<QRcode, CodeFreer> code(
        QRcode_encodeString(number.c_str(), 0, QR_ECLEVEL_M, QR_MODE_8, 1));
    if (code == nullptr) {
        throw Error("No code can be made of the order number \"" + number +
                    "\". Choose a shorter one.");
    }
    side_ = code->width;
    QPainterPath modules;
    for (int y = 0; y < side_; ++y) {
        for (int x = 0; x < side_; ++x) {
            if ((code->data[y * side_ + x] & 1U) != 0) {
                modules.addRect(x, y, 1, 1);
            }
        }
    }
    // One outline around neighbors: between lone squares screens show hairs of white.
    modules.setFillRule(Qt::WindingFill);
    dark_ = modules.simplified();
}

void OrderCode::Draw(QPainter& painter, const QPointF& corner, double side) const {
    if (IsNone()) {
        return;
    }
    painter.save();
    painter.translate(corner);
    painter.scale(side / (side_ + 2 * kRim), side / (side_ + 2 * kRim));
    painter.translate(kRim, kRim);
    painter.fillPath(dark_, Qt::black);
    painter.restore();
}

}  // namespace vendrel
