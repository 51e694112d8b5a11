// What the eye would notice only late: gaps between neighbours, wrong segments, captions that
// leave their keys.
#include "core/controls/simple_controls.h"
#include "ui/qt/paint/controls.h"
#include "ui/qt/paint/led_digits.h"
#include "ui/qt/paint/lists.h"
#include "ui/qt/paint/note_roll.h"
#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/sliders.h"
#include "ui/qt/paint/type.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <array>
#include <string>
#include <tuple>
#include <vector>

namespace zephyne::paint {
namespace {

constexpr std::array scales{1.0, 1.25, 1.5, 2.0};

QImage blank(const QSize& size, const QColor& ground = Qt::black) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(ground);
    return picture;
}

// Runs some drawing on a fresh picture.
template <typename Draw>
QImage drawn(const QSize& size, Draw draw, const QColor& ground = Qt::black) {
    QImage picture = blank(size, ground);
    QPainter painter(&picture);
    draw(painter);
    return picture;
}

// The box around all pixels that differ between two pictures of one size.
QRect changed(const QImage& before, const QImage& after) {
    QRect box;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y)) box |= QRect(x, y, 1, 1);
    return box;
}

TEST(PaintScale, NeighboursNeverGapOrOverlapAtAnyScale) {
    for (const double s : scales) {
        const Scale scale{s};
        for (int left = 0; left < 300; ++left) {
            const QRect one = scale.box(left, 7, 295, 285);
            const QRect next = scale.box(left + 295, 7 + 285, 33, 11);
            EXPECT_EQ(one.right() + 1, next.left()) << s << ' ' << left;
            EXPECT_EQ(one.bottom() + 1, next.top()) << s << ' ' << left;
        }
    }
}

TEST(PaintScale, HalvesGoUpOnBothSidesOfZero) {
    EXPECT_EQ(Scale{1.0}.edge(7), 0);
    EXPECT_EQ(Scale{1.5}.px(1), 2);
    EXPECT_EQ(Scale{1.5}.px(-1), -1);
    EXPECT_EQ(Scale{1.25}.stroke(), 1);
    EXPECT_EQ(Scale{1.5}.stroke(), 2);
    EXPECT_EQ(Scale{1.0}.stroke(0.2), 1) << "a stroke never vanishes";
}

TEST(PaintScale, AnInsetBringsTheEdgesOfDifferentPlacesToOneLine) {
    for (const double s : scales) {
        const QRect one = Scale{s}.box(2745, 2040, 6030, 2205, {.left = 1});
        const QRect other = Scale{s}.box(2760, 480, 6030, 1215, {.right = 1});
        EXPECT_EQ(one.left(), other.left());
        EXPECT_EQ(one.right(), other.right());
    }
}

TEST(PaintSurfaces, TheSeatOfAKeyIsAllThatLeavesItsBox) {
    for (const double s : scales) {
        const Scale scale{s};
        const QRect box(20, 20, scale.px(65), scale.px(19));
        const QColor ground(0x40, 0x40, 0x40);
        const QImage empty = blank({200, 100}, ground);
        const QImage with_key = drawn(
            empty.size(), [&](QPainter& painter) { key(painter, scale, box, KeyFace::Up); },
            ground);
        EXPECT_EQ(changed(empty, with_key), box.adjusted(0, 0, 0, scale.stroke())) << s;
    }
}

TEST(PaintSurfaces, TheFocusHaloStaysWithinTheOverhang) {
    for (const double s : scales) {
        const Scale scale{s};
        const QRect box(20, 20, 60, 30);
        const QImage empty = blank({120, 80});
        const auto ring = [&](Focus focus) {
            return changed(empty, drawn(empty.size(), [&](QPainter& painter) {
                               focus_ring(painter, scale, box, key_radius, focus);
                           }));
        };
        EXPECT_EQ(ring(Focus::Ring), shrunk(box, -overhang * scale.stroke())) << s;
        EXPECT_EQ(ring(Focus::Quiet), box) << s;
        EXPECT_TRUE(ring(Focus::None).isEmpty()) << s;
    }
}

TEST(PaintLed, TheColourFollowsDisplayAndIsBlackForAnyOther) {
    EXPECT_EQ(led_color(0), QColor(0x00, 0xFF, 0x00));
    EXPECT_EQ(led_color(1), QColor(0xFF, 0x99, 0x00));
    EXPECT_EQ(led_color(2), QColor(0xFF, 0x00, 0x00));
    for (const int other : {-1, 3, 17, 1000000}) EXPECT_EQ(led_color(other), QColor(Qt::black));
}

// Samples the middle of each segment of a digit drawn on black.
std::string segments_seen(int picture, const QColor& expected) {
    const Scale scale{2.0};
    const QRect cell(20, 20, 40, 80);
    const QImage image =
        drawn({80, 120}, [&](QPainter& painter) { led_digit(painter, scale, cell, picture); });
    // Middles in a cell of 100 x 200, before the slant.
    struct Middle {
        char name;
        double x;
        double y;
    };
    constexpr Middle middles[] = {{'a', 48, 14},  {'b', 77, 56}, {'c', 77, 144}, {'d', 48, 186},
                                  {'e', 19, 144}, {'f', 19, 56}, {'g', 48, 100}};
    std::string lit;
    for (const Middle& middle : middles) {
        const double slanted = middle.x + (100 - middle.y) * 0.08 + 2;
        const QColor pixel = image.pixelColor(cell.left() + static_cast<int>(slanted * 0.4),
                                              cell.top() + static_cast<int>(middle.y * 0.4));
        if (pixel == expected) lit += middle.name;
    }
    return lit;
}

TEST(PaintLed, EveryDigitLightsItsSegmentsInEveryColour) {
    const std::vector<std::pair<int, std::string>> table{
        {0, "abcdef"}, {1, "bc"},     {2, "abdeg"}, {3, "abcdg"},   {4, "bcfg"},
        {5, "acdfg"},  {6, "acdefg"}, {7, "abc"},   {8, "abcdefg"}, {9, "abcdfg"}};
    for (int display = 0; display < 3; ++display) {
        const QColor color = led_color(display);
        for (const auto& [digit, lit] : table) {
            EXPECT_EQ(segments_seen(digit_image(display, digit), color), lit)
                << "Display " << display << ", digit " << digit;
        }
        EXPECT_EQ(segments_seen(blank_image(display), color), "") << display;
        EXPECT_EQ(segments_seen(reset_image(display), color), "adg") << display;
    }
}

TEST(PaintLed, AnUnknownDisplayAndAWrongNumberShowNoColour) {
    for (const int picture : {digit_image(7, 3), 0, -5, 2000000000}) {
        const QImage image = drawn({80, 120}, [&](QPainter& painter) {
            led_digit(painter, Scale{2}, QRect(20, 20, 40, 80), picture);
            led_status(painter, Scale{2}, QRect(20, 20, 18, 80), picture);
        });
        EXPECT_EQ(image, blank(image.size())) << picture;
    }
}

TEST(PaintLed, TheColonBlinksAndRocks) {
    const std::array<std::pair<bool, bool>, 4> expected{
        {{true, true}, {false, false}, {true, false}, {false, true}}};
    for (int frame = 1; frame <= 4; ++frame) {
        const QImage image = drawn({60, 120}, [&](QPainter& painter) {
            led_status(painter, Scale{2}, QRect(20, 20, 18, 80), status_image(1, frame));
        });
        const auto lit = [&](int x, int y) { return image.pixelColor(x, y) == led_color(1); };
        const auto [upper, lower] = expected[static_cast<std::size_t>(frame - 1)];
        EXPECT_EQ(lit(30, 46), upper) << frame;
        EXPECT_EQ(lit(27, 73), lower) << frame;
    }
}

TEST(NoteRoll, IsSilentOnlyAtRestAndNeverLeavesItsCell) {
    const QRect cell(10, 10, 57, 60);
    const QImage empty = blank({80, 80});
    for (int frame = 1; frame <= roll_frames; ++frame) {
        const auto notes = roll_notes(frame);
        const bool sounding = std::any_of(notes.begin(), notes.end(), [](const RollNote& note) {
            return phase_at(note, roll_line_step) == NotePhase::Sounding;
        });
        EXPECT_EQ(sounding, frame != 1) << frame;
        const QImage image = drawn(
            empty.size(), [&](QPainter& painter) { note_roll(painter, Scale{1.5}, cell, frame); });
        EXPECT_TRUE(cell.contains(changed(empty, image))) << frame;
    }
}

TEST(NoteRoll, NotesTravelOneStepPerFrameAndTheLoopHasNoSeam) {
    // What will still be seen in the next frame must be found there, one step further left.
    for (int frame = 1; frame <= roll_frames; ++frame) {
        const auto next = roll_notes(frame + 1);
        for (const RollNote& note : roll_notes(frame)) {
            if (note.position + note.length <= 1 || note.position > roll_steps) continue;
            EXPECT_TRUE(std::any_of(next.begin(), next.end(),
                                    [&](const RollNote& later) {
                                        return std::tuple(later.position + 1, later.length,
                                                          later.row) ==
                                               std::tuple(note.position, note.length, note.row);
                                    }))
                << "frame " << frame << ", note at " << note.position;
        }
    }
    const auto picture = [](int frame) {
        return drawn({38, 40}, [&](QPainter& painter) {
            note_roll(painter, Scale{1}, QRect(0, 0, 38, 40), frame);
        });
    };
    EXPECT_EQ(picture(roll_frames + 1), picture(1));
    EXPECT_NE(picture(roll_frames), picture(1));
}

TEST(PaintType, CaptionsAreCondensedBeforeTheyAreCut) {
    const Scale scale{1};
    const QString caption = "Explore";
    const double natural = text_width(caption, Role::Caption, scale);

    const FittedText roomy = fit_text(caption, Role::Caption, scale, natural + 1, Fit::Condense);
    EXPECT_EQ(roomy.stretch, 1);
    const FittedText tight = fit_text(caption, Role::Caption, scale, natural * 0.92, Fit::Condense);
    EXPECT_EQ(tight.text, caption);
    EXPECT_NEAR(tight.stretch, 0.92, 0.001);
    const FittedText cut = fit_text(caption, Role::Caption, scale, natural * 0.7, Fit::Condense);
    EXPECT_NE(cut.text, caption);
    EXPECT_NEAR(cut.stretch, 0.88, 0.001);
    EXPECT_TRUE(fit_text(caption, Role::Caption, scale, 1, Fit::Condense).text.isEmpty());
}

TEST(PaintType, AFittedLineNeverLeavesItsBox) {
    const QString text = "A song whose name goes on and on.mid";
    const QRect box(20, 10, 60, 20);
    const QImage empty = blank({400, 40});
    for (const Fit fit : {Fit::Condense, Fit::ElideMiddle}) {
        const QImage image = drawn(empty.size(), [&](QPainter& painter) {
            draw_text(painter, Scale{1}, box, text,
                      {.role = Role::Row, .color = Qt::white, .fit = fit});
        });
        const QRect ink = changed(empty, image);
        EXPECT_FALSE(ink.isEmpty());
        EXPECT_TRUE(box.adjusted(-1, 0, 1, 0).contains(ink)) << static_cast<int>(fit);
    }
}

TEST(PaintType, ATextBoxOfTheInformationWindowHoldsSixLines) {
    for (const double factor : scales) {
        const Scale scale{factor};
        const QRect inside =
            text_box_interior(scale, scale.box(180, 1845, 2800, 1560), TextLines::Many);
        EXPECT_GE(inside.height(), scale.exact(6 * face(Role::Row).pitch)) << factor;
    }
}

TEST(PaintType, AnElidedFileNameKeepsItsEnds) {
    const FittedText fitted = fit_text("Moonlight over the harbour at four.mid", Role::Row,
                                       Scale{1}, 120, Fit::ElideMiddle);
    EXPECT_TRUE(fitted.text.startsWith("Moon"));
    EXPECT_TRUE(fitted.text.endsWith(".mid"));
    EXPECT_LE(fitted.width, 120);
}

TEST(PaintType, WidthsGrowWithTheScaleAndNothingElse) {
    const QString text = "Random Playback";
    const double one = text_width(text, Role::LedValue, Scale{1});
    for (const double s : scales)
        EXPECT_NEAR(text_width(text, Role::LedValue, Scale{s}), one * s, 0.01 * one * s);
}

TEST(PaintType, WrappedLinesKeepAllWordsAndFitTheirRoom) {
    const Scale scale{1.25};
    const QString text = "one two\r\n\nthree averyveryverylongwordwithoutspaces x";
    const QStringList lines = wrap_text(text, Role::Notice, scale, 60);
    ASSERT_GE(lines.size(), 4);
    EXPECT_TRUE(lines.contains(QString())) << "the empty line is kept";
    for (const QString& line : lines)
        EXPECT_LE(text_width(line.trimmed(), Role::Notice, scale), 61) << qPrintable(line);
    QString joined = lines.join(QString());
    EXPECT_EQ(joined.remove(QLatin1Char(' ')), "onetwothreeaveryveryverylongwordwithoutspacesx");
}

TEST(PaintType, AHighKeyBreaksItsCaptionIntoEvenLines) {
    const Scale scale{1};
    EXPECT_EQ(balanced_lines("Create/Edit/Save a Playlist", Role::Caption, scale),
              QStringList({"Create/Edit/Save", "a Playlist"}));
    EXPECT_EQ(balanced_lines("Open a Playlist", Role::Caption, scale),
              QStringList({"Open a", "Playlist"}));
    EXPECT_EQ(balanced_lines("Options...", Role::Caption, scale).size(), 1);
}

TEST(PaintSliders, TheCapStandsWhereTheMouseWouldPutIt) {
    for (const double s : scales) {
        const Scale scale{s};
        const QRect flat(10, 10, scale.px(151), scale.px(17));
        const QRect upright(10, 10, scale.px(19), scale.px(103));
        for (int percent = 0; percent <= 100; percent += 5) {
            const double value = percent / 100.0;
            const QRect cap = slider_cap_box(scale, flat, SliderKind::Position, value);
            const QRect volume = slider_cap_box(scale, upright, SliderKind::LeftVolume, value);
            EXPECT_TRUE(flat.contains(cap)) << s << ' ' << percent;
            EXPECT_TRUE(upright.contains(volume)) << s << ' ' << percent;
            EXPECT_NEAR(
                slider_value_at(scale, flat, SliderKind::Position, {cap.left() + scale.px(5), 0}),
                value, 0.005);
            EXPECT_NEAR(slider_value_at(scale, upright, SliderKind::LeftVolume,
                                        {0, volume.top() + scale.px(5)}),
                        value, 0.008);
        }
        EXPECT_EQ(slider_value_at(scale, flat, SliderKind::Position, {-999, 0}), 0);
        EXPECT_EQ(slider_value_at(scale, flat, SliderKind::Position, {9999, 0}), 1);
    }
}

TEST(PaintLists, TheThumbStaysInItsTrackForAnyListLength) {
    const Scale scale{1.5};
    const QRect track = scroll_track(scale, QRect(0, 0, 200, 220));
    for (const int maximum : {1, 5, 100000, 2000000000}) {
        for (const double share : {-1.0, 0.0, 0.5, 1.0, 2.0}) {
            const ScrollRange range{maximum, 9, static_cast<int>(share * (maximum / 2))};
            const QRect thumb = scroll_thumb(scale, track, range);
            EXPECT_TRUE(track.contains(thumb)) << maximum << ' ' << share;
            EXPECT_GE(thumb.height(), scale.px(16));
        }
        const ScrollRange range{maximum, 9, 0};
        EXPECT_EQ(scroll_value_at(scale, track, range, -50), 0);
        EXPECT_EQ(scroll_value_at(scale, track, range, 5000), maximum);
    }
}

TEST(PaintGlyphs, EveryGlyphHasInkInTheColourAskedFor) {
    for (int index = 0; index <= static_cast<int>(Glyph::Check); ++index) {
        const auto glyph = static_cast<Glyph>(index);
        const QSize size = glyph_size(glyph) * 4;
        const QImage image = drawn(size, [&](QPainter& painter) {
            draw_glyph(painter, glyph, QRect(QPoint(), size), palette::ice);
        });
        int solid = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) solid += image.pixelColor(x, y) == palette::ice;
        EXPECT_GT(solid, 60) << index;
    }
}

}  // namespace
}  // namespace zephyne::paint
