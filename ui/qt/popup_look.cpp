#include "ui/qt/popup_look.h"

#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/type.h"

#include <QPalette>
#include <QToolTip>
#include <utility>

namespace zephyne::popup_look {
namespace {

namespace palette = paint::palette;

// Replaces $name by a colour and (n) by a length of n px at 100 %.
QString filled_in(QString sheet, double factor) {
    const paint::Scale scale{factor};
    const std::pair<const char*, QColor> colors[] = {{"$ground", palette::popup},
                                                     {"$edge", palette::popup_edge},
                                                     {"$text", palette::engraving},
                                                     {"$quiet", palette::quiet},
                                                     {"$selection", palette::selection},
                                                     {"$lit", palette::selection_text},
                                                     {"$well", palette::well},
                                                     {"$prose", palette::well_text},
                                                     {"$link", palette::ice},
                                                     {"$face", palette::face_bottom},
                                                     {"$outline", palette::edge},
                                                     {"$keytop", palette::key_top},
                                                     {"$keyend", palette::key_bottom},
                                                     {"$hovertop", palette::key_hover_top},
                                                     {"$hoverend", palette::key_hover_bottom},
                                                     {"$track", palette::scroll_track},
                                                     {"$thumb", palette::scroll_thumb},
                                                     {"$off", palette::key_off}};
    for (const auto& [name, color] : colors) sheet.replace(QLatin1String(name), color.name());
    for (const int length : {1, 2, 3, 4, 9, 11, 12, 14, 16, 22}) {
        sheet.replace(QStringLiteral("(%1)").arg(length),
                      QStringLiteral("%1px").arg(scale.px(length)));
    }
    return sheet.replace(
        QLatin1String("$family"),
        paint::font(paint::Role::Caption, scale).families().join(QLatin1String("\", \"")));
}

}  // namespace

QString tooltip(double factor) {
    // Qt adds the widest border and padding to all sides once more, and a pixel: 6 by 4 in all. It
    // thickens letters of this size, so that a weight of 400 looks like the 500 of the captions.
    return filled_in(QStringLiteral("QToolTip { background: $ground; color: $text;"
                                    " border: (1) solid $edge; padding: 0 (2);"
                                    " font: 400 (11) \"$family\"; }"),
                     factor);
}

void dress_tooltips(double factor) {
    QPalette colors = QToolTip::palette();
    colors.setColor(QPalette::ToolTipBase, palette::popup);
    colors.setColor(QPalette::ToolTipText, palette::engraving);
    colors.setColor(QPalette::Window, palette::popup_edge);
    QToolTip::setPalette(colors);
    QToolTip::setFont(paint::font(paint::Role::Notice, paint::Scale{factor}));
}

QString whats_this(double factor) {
    return filled_in(QStringLiteral("QLabel { background: $ground; color: $text;"
                                    " border: (1) solid $edge; padding: (4) (11);"
                                    " font: 400 (11) \"$family\"; }"),
                     factor);
}

QString help_window(double factor) {
    return filled_in(
        QStringLiteral("QWidget#help { background: $face; }"
                       "QPushButton { color: $text; font: 500 (11) \"$family\"; padding: (4) (12);"
                       " border: (1) solid $outline; border-radius: (3);"
                       " background: qlineargradient(x1:0,y1:0,x2:0,y2:1,"
                       "stop:0 $keytop,stop:1 $keyend); }"
                       "QPushButton:hover { background: qlineargradient(x1:0,y1:0,x2:0,y2:1,"
                       "stop:0 $hovertop,stop:1 $hoverend); }"
                       "QPushButton:pressed { background: $well; }"
                       "QPushButton:focus { border-color: $link; }"
                       "QPushButton:disabled { background: $off; color: $quiet; }"
                       "QTextBrowser { font: 400 (12) \"$family\"; background: $well; color: "
                       "$prose; border: (1) solid $outline;"
                       " selection-background-color: $selection; selection-color: $lit; }"
                       "QTextBrowser:focus { border-color: $link; }"
                       "QScrollBar:vertical { background: $track; width: (9); margin: 0; }"
                       "QScrollBar::handle:vertical { background: $thumb; min-height: (16);"
                       " border-radius: (2); margin: 0 (2); }"
                       "QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }"
                       "QScrollBar::add-page, QScrollBar::sub-page { background: $track; }"),
        factor);
}

// The headings keep Qt's sizes, which follow from the window's font.
QString help_document(double factor) {
    return filled_in(QStringLiteral("p, li, td, th, pre { line-height: 125%; }"
                                    "h1, h2 { font-weight: 600; color: $lit; }"
                                    "h2 { margin-top: (22); }"
                                    "h3 { font-weight: 600; color: $text; margin-top: (14); }"
                                    "b, th { font-weight: 600; color: $text; }"
                                    "code, pre { font-family: monospace; color: $text; }"
                                    "a { color: $link; text-decoration: none; }"),
                     factor);
}

}  // namespace zephyne::popup_look
