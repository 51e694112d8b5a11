#include "ui/qt/caret.h"

#include "ui/qt/paint/palette.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleHints>
#include <QWidget>

namespace zephyne {
namespace {

class TextStyle final : public QProxyStyle {
  public:
    TextStyle() : QProxyStyle(QStringLiteral("fusion")) { setParent(qApp); }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        return metric == PM_TextCursorWidth ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

}  // namespace

QStyle& text_style() {
    static QStyle* const style = new TextStyle;
    return *style;
}

Caret::Caret(QWidget& surface) : QObject(&surface), surface_(surface) {
    connect(&blink_, &QTimer::timeout, this, [this] {
        lit_ = !lit_;
        surface_.update();
    });
}

void Caret::start() {
    lit_ = true;
    const int period = QGuiApplication::styleHints()->cursorFlashTime();
    if (period > 0) blink_.start(period / 2);
    surface_.update();
}

void Caret::stop() {
    lit_ = false;
    blink_.stop();
    surface_.update();
}

void Caret::paint(const Pixels& pixels, const QRect& line) {
    if (!lit_) return;
    DevicePainter painter(surface_);
    const QRect place = pixels.device(line.translated(origin_in_window(surface_)));
    painter.fillRect(place.left(), place.top(), pixels.scale().stroke(), place.height(),
                     paint::palette::ice);
}

}  // namespace zephyne
