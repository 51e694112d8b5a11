#include "ui/qt/menu_style.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QMenu>

namespace zephyne {
namespace {

// The light on a row: what its letters cover.
int light_of(const QImage& menu, const QRect& row) {
    int light = 0;
    for (int y = row.top(); y <= row.bottom(); ++y) {
        for (int x = row.left(); x <= row.right(); ++x) light += qGray(menu.pixel(x, y));
    }
    return light - row.width() * row.height() * qGray(menu.pixel(row.center().x(), row.top()));
}

TEST(MenuStyle, KeepsLongNamesOnTheScreenAndTheDefaultEntryBold) {
    const auto style = menu_style(1);
    QMenu menu;
    menu.setStyle(style.get());
    QAction* plain = menu.addAction("Show");
    QAction* line = menu.addSeparator();
    QAction* bold = menu.addAction("Show");
    menu.addAction(QString(250, QLatin1Char('m')));
    menu.setDefaultAction(bold);
    menu.resize(menu.sizeHint());

    EXPECT_EQ(menu.width(), 360 + 2 * 22 + 2);
    EXPECT_EQ(menu.actionGeometry(line).height(), 7);
    const QImage picture = menu.grab().toImage();
    const int plain_light = light_of(picture, menu.actionGeometry(plain));
    EXPECT_GT(plain_light, 0);
    EXPECT_GT(light_of(picture, menu.actionGeometry(bold)), plain_light * 105 / 100);
}

}  // namespace
}  // namespace zephyne
