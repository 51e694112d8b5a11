#include "ui/qt/popup_look.h"

#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/type.h"

#include <QMenu>
#include <QPalette>
#include <QToolTip>
#include <memory>
#include <utility>

namespace zephyne::popup_look {
namespace {

namespace palette = paint::palette;

// Replaces $name by a colour and (n) by a length of n px at 100 %.
QString filled_in(QString sheet, double factor) {
    const paint::Scale scale{factor};
    const std::pair<const char*, QColor> colors[] = {
        {"$ground", palette::popup},        {"$edge", palette::popup_edge},
        {"$text", palette::engraving},      {"$quiet", palette::quiet},
        {"$selection", palette::selection}, {"$lit", palette::selection_text}};
    for (const auto& [name, color] : colors) sheet.replace(QLatin1String(name), color.name());
    for (const int length : {1, 2, 3, 4, 11, 22}) {
        sheet.replace(QStringLiteral("(%1)").arg(length),
                      QStringLiteral("%1px").arg(scale.px(length)));
    }
    return sheet.replace(
        QLatin1String("$family"),
        paint::font(paint::Role::Caption, scale).families().join(QLatin1String("\", \"")));
}

}  // namespace

QString tooltip(double factor) {
    // Qt adds the widest border and padding to all sides once more, and a pixel: 6 by 4 in all.
    return filled_in(QStringLiteral("QToolTip { background: $ground; color: $text;"
                                    " border: (1) solid $edge; padding: 0 (2);"
                                    " font: 500 (11) \"$family\"; }"),
                     factor);
}

void dress_tooltips(double factor) {
    QPalette colors = QToolTip::palette();
    colors.setColor(QPalette::ToolTipBase, palette::popup);
    colors.setColor(QPalette::ToolTipText, palette::engraving);
    colors.setColor(QPalette::Window, palette::popup_edge);
    QToolTip::setPalette(colors);
    QToolTip::setFont(paint::font(paint::Role::Caption, paint::Scale{factor}));
}

QString menu(double factor) {
    return filled_in(
        QStringLiteral("QMenu { background: $ground; color: $text; border: (1) solid $edge;"
                       " font: 500 (11) \"$family\"; }"
                       "QMenu::item { padding: (3) (22); }"
                       "QMenu::item:selected { background: $selection; color: $lit; }"
                       "QMenu::item:disabled { background: transparent; color: $quiet; }"
                       "QMenu::item:default { font-weight: 600; }"
                       "QMenu::icon { width: 0; }"
                       "QMenu::separator { height: (1); background: $edge; margin: (3) 0; }"),
        factor);
}

void run_menu(QMenu* menu, double factor, const QPoint& screen_point) {
    const std::unique_ptr<QMenu> owned(menu);
    if (!owned) return;
    owned->setStyleSheet(popup_look::menu(factor));
    owned->exec(screen_point);
}

}  // namespace zephyne::popup_look
