#pragma once

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <string>

namespace vendrel {

/// A QR code of an order's number, in squares that no printer blurs.
class OrderCode {
  public:
    OrderCode() = default;
    /// An empty number makes none. Throws Error for one that no code can hold.
    explicit OrderCode(const std::string& number);

    [[nodiscard]] bool IsNone() const { return side_ == 0; }
    /// Into a square of the painter's units, with the white rim that readers need.
    void Draw(QPainter& painter, const QPointF& corner, double side) const;

  private:
    QPainterPath dark_;  // a unit to the module, the rim left out
    int side_ = 0;       // modules
};

}  // namespace vendrel
