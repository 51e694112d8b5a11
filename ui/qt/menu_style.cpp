#include "ui/qt/menu_style.h"

#include "ui/qt/paint/controls.h"
#include "ui/qt/pixels.h"
#include "ui/qt/shown_text.h"

#include <QMenu>
#include <QProxyStyle>
#include <QStyleOptionMenuItem>
#include <algorithm>
#include <cmath>

namespace zephyne {
namespace {

// px at 100 %
constexpr int widest_text = 360;  // a longer name of a song is elided
constexpr int separator_height = 7;

// A menu's text is "Caption<tab>name of its key".
QString caption_of(const QStyleOptionMenuItem& item) {
    return without_mnemonic(item.text.section(QLatin1Char('\t'), 0, 0));
}

paint::MenuRowState state_of(const QStyleOptionMenuItem& item) {
    return {.enabled = (item.state & QStyle::State_Enabled) != 0,
            .selected = (item.state & QStyle::State_Selected) != 0,
            .is_default = item.menuItemType == QStyleOptionMenuItem::DefaultItem};
}

class MenuStyle final : public QProxyStyle {
  public:
    explicit MenuStyle(double factor) : QProxyStyle(QStringLiteral("fusion")), factor_(factor) {}

    void polish(QWidget* menu) override {
        menu->setFont(paint::font(paint::Role::Caption, paint::Scale{factor_}));
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        switch (metric) {
            case PM_MenuPanelWidth:
                return paint::Scale{factor_}.stroke();
            case PM_MenuHMargin:
            case PM_MenuVMargin:
                return 0;
            default:
                return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    // Without the names of keys, for which Qt makes room.
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override {
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (type != CT_MenuItem || !item) {
            return QProxyStyle::sizeFromContents(type, option, size, widget);
        }
        const paint::Scale scale{factor_};
        if (item->menuItemType == QStyleOptionMenuItem::Separator) {
            return {1, scale.px(separator_height)};  // Qt drops what has no width
        }
        const double text =
            paint::text_width(caption_of(*item), paint::menu_role(state_of(*item)), scale);
        const int width = std::min(static_cast<int>(std::ceil(text)), scale.px(widest_text));
        return {width + 2 * scale.px(paint::menu_text_margin), scale.px(paint::menu_row_height)};
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element == PE_FrameMenu) return;  // a part of the ground
        if (element != PE_PanelMenu) {
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
        in_device_pixels(*painter, *option, [&](const paint::Scale& scale, const QRect& place) {
            paint::popup_ground(*painter, scale, place);
        });
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        if (element == CE_MenuEmptyArea) return;
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (element != CE_MenuItem || !item) {
            return QProxyStyle::drawControl(element, option, painter, widget);
        }
        in_device_pixels(*painter, *option, [&](const paint::Scale& scale, const QRect& place) {
            if (item->menuItemType == QStyleOptionMenuItem::Separator) {
                return paint::menu_separator(*painter, scale, place);
            }
            paint::menu_row(*painter, scale, place, state_of(*item), caption_of(*item),
                            item->text.section(QLatin1Char('\t'), 1));
        });
    }

  private:
    template <class Draw>
    void in_device_pixels(QPainter& painter, const QStyleOption& option, const Draw& draw) const {
        const Pixels pixels{factor_, painter.device()->devicePixelRatioF()};
        painter.save();
        painter.scale(1 / pixels.ratio, 1 / pixels.ratio);
        draw(pixels.scale(), pixels.device(option.rect));
        painter.restore();
    }

    double factor_;
};

}  // namespace

std::unique_ptr<QStyle> menu_style(double factor) {
    return std::make_unique<MenuStyle>(factor);
}

void run_menu(QMenu* menu, double factor, const QPoint& screen_point) {
    const std::unique_ptr<QStyle> style = menu_style(factor);
    const std::unique_ptr<QMenu> owned(menu);
    if (!owned) return;
    owned->setStyle(style.get());
    owned->exec(screen_point);
}

}  // namespace zephyne
