#include "platform/desktop/qt_notification_area.h"
#include "tests/tray/display.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMouseEvent>
#include <QPixmap>
#include <QPointer>
#include <QProxyStyle>
#include <QScreen>
#include <QSystemTrayIcon>
#include <QTextDocument>
#include <QWindow>
#include <optional>

namespace zephyne::test {
namespace {

constexpr int kIcon = 12;  // its middle, in either direction

QIcon red_square() {
    QPixmap picture(22, 22);
    picture.fill(Qt::red);
    return picture;
}

class TrayIcon : public testing::Test {
  protected:
    void SetUp() override {
        area.on_message = [this](std::uint32_t, std::uint32_t event) { events.push_back(event); };
        first.on_click = [this] { chosen = "first"; };
        second.on_click = [this] { chosen = "second"; };
        area.set_menu({{&first, &line, &hidden, &second, &off}, &second});
        mouse(400, 400, {});
    }

    // The icon takes a moment to come up, in which clicks go past it.
    bool reached_by_click() {
        events.clear();
        return wait_until([this] {
            mouse(kIcon, kIcon, {"click", "1"});
            QCoreApplication::processEvents();
            return !events.empty();
        });
    }
    static QMenu* open_menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    static void choose(QMenu* menu, const QString& entry) {
        for (QAction* action : menu->actions()) {
            if (action->text() != entry) continue;
            const QPoint place = menu->mapToGlobal(menu->actionGeometry(action).center());
            mouse(place.x(), place.y(), {"click", "1"});
        }
    }
    void add() {
        record.set_tip("Zephyne - Playing \xC3\xA9tude.mid");
        area.notify_icon(NotifyCommand::add, record);
    }
    void come_up() {
        add();
        ASSERT_TRUE(reached_by_click());
    }
    static void wait_for_menu() {
        ASSERT_TRUE(wait_until([] { return open_menu() != nullptr; }));
    }
    void show_menu() {
        area.show_menu();
        wait_for_menu();
    }
    void choose_second(const QString& entry) {
        choose(open_menu(), entry);
        EXPECT_TRUE(wait_until([this] { return chosen == "second"; }));
    }

    MenuItem first{.name = "first", .caption = "Stop & go"};
    MenuItem line{.name = "line", .kind = MenuItemKind::separator};
    MenuItem hidden{.name = "hidden", .caption = "Hidden", .visible = false};
    MenuItem second{.name = "second", .caption = "Show"};
    MenuItem off{.name = "off", .caption = "Off", .enabled = false};
    NotifyIconData record;
    std::vector<std::uint32_t> events;
    std::string chosen;
    QtNotificationArea area{red_square, std::make_unique<QProxyStyle>()};
};

TEST_F(TrayIcon, ComesUpHoweverLateItsHostIsAndComesBackWithIt) {
    EXPECT_FALSE(area.has_host());
    add();
    for (int i = 0; i < 2; ++i) {
        const TrayHost host;
        ASSERT_TRUE(host.started());
        EXPECT_TRUE(wait_until([this] { return area.has_host(); }));
        EXPECT_TRUE(reached_by_click());
    }
    EXPECT_TRUE(wait_until([this] { return !area.has_host(); }));
}

TEST_F(TrayIcon, ReportsEachReleaseOfTheLeftButtonAndOpensTheMenuWithTheRight) {
    const TrayHost host;
    come_up();
    QProcess::execute("sleep", {"0.6"});  // no part of a double click any more
    QCoreApplication::processEvents();
    events.clear();
    mouse(kIcon, kIcon, {"click", "--repeat", "2", "--delay", "50", "1"});
    EXPECT_TRUE(wait_until([this] { return events.size() >= 2; }));
    EXPECT_EQ(events, (std::vector<std::uint32_t>(2, MouseMessage::LeftButtonUp)));

    events.clear();
    mouse(kIcon, kIcon, {"click", "3"});
    wait_for_menu();
    area.show_menu();
    EXPECT_EQ(open_menu()->defaultAction()->text(), "Show");
    EXPECT_TRUE(wait_until([this] { return !events.empty(); }));
    EXPECT_EQ(events, std::vector<std::uint32_t>{MouseMessage::RightButtonUp});
    choose(open_menu(), "Stop && go");
    EXPECT_TRUE(wait_until([this] { return chosen == "first"; }));
    EXPECT_EQ(open_menu(), nullptr);
}

TEST_F(TrayIcon, TheOpenMenuFollowsThePlayerAndOutlivesItsHost) {
    std::optional<TrayHost> host(std::in_place);
    come_up();
    show_menu();
    second.caption = "Play";
    hidden.visible = true;
    off.enabled = true;
    record.uFlags = NotifyIconData::tip_valid;
    area.notify_icon(NotifyCommand::modify, record);
    QStringList entries;
    for (const QAction* action : open_menu()->actions()) {
        if (action->isVisible() && action->isEnabled()) entries << action->text();
    }
    EXPECT_EQ(entries, (QStringList{"Stop && go", "", "Hidden", "Play", "Off"}));

    const QRect screen = open_menu()->screen()->availableGeometry();
    open_menu()->move(screen.bottomRight() - open_menu()->rect().bottomRight());
    hidden.caption = "A song with quite a long name.mid";
    area.notify_icon(NotifyCommand::modify, record);
    EXPECT_TRUE(screen.contains(open_menu()->geometry())) << "where it has grown";

    host.reset();
    EXPECT_TRUE(wait_until([this] { return !area.has_host(); }));
    choose_second("Play");

    show_menu();
    area.notify_icon(NotifyCommand::remove, record);
    EXPECT_EQ(open_menu(), nullptr);
}

TEST_F(TrayIcon, MayBeTakenAwayInAnswerToItsClick) {
    const TrayHost host;
    come_up();
    area.notify_icon(NotifyCommand::modify, record);
    area.on_message = [&](auto...) { area.notify_icon(NotifyCommand::remove, record); };
    for (const QPointer<QWidget> icon : QApplication::topLevelWidgets()) {
        if (!icon->inherits("QSystemTrayIconSys")) continue;
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(icon->windowHandle(), &release);
        EXPECT_TRUE(icon) << "its event is still being handled";
        EXPECT_TRUE(wait_until([&] { return !icon; }));
        return;
    }
    FAIL() << "no icon";
}

TEST_F(TrayIcon, ShowsNoNameAsMarkup) {
    const TrayHost host;
    record.set_tip("Zephyne - Playing <b>&lt;.mid");
    area.notify_icon(NotifyCommand::add, record);
    const QSystemTrayIcon* icon = nullptr;
    ASSERT_TRUE(wait_until([&] {
        icon = area.findChild<QSystemTrayIcon*>();
        return icon && !icon->toolTip().isEmpty();
    }));
    const QString tip = icon->toolTip();
    EXPECT_FALSE(Qt::mightBeRichText(tip)) << tip.toStdString();
}

TEST_F(TrayIcon, IsReachedWhileAWindowIsModal) {
    const TrayHost host;
    come_up();
    QDialog dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setGeometry(300, 300, 100, 100);
    dialog.show();
    record.uFlags = NotifyIconData::tip_valid;
    area.notify_icon(NotifyCommand::modify, record);
    EXPECT_TRUE(reached_by_click());
    show_menu();
    choose_second("Show");
}

}  // namespace
}  // namespace zephyne::test
