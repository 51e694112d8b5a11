// Draws every control in every state into one picture, for the eye.
//
//   gallery PICTURE.png [SCALE]      SCALE: device pixels per px at 100 %, 2 if not given

#include "sheet.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cstdio>

int main(int argc, char** argv) {
    using namespace zephyne;

    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    bool is_number = true;
    const double s = arguments.size() > 2 ? arguments[2].toDouble(&is_number) : 2;
    if (arguments.size() < 2 || arguments.size() > 3 || !is_number || s < 1 || s > 8) {
        std::fputs("usage: gallery PICTURE.png [SCALE from 1 to 8]\n", stderr);
        return 2;
    }

    const paint::Scale scale{s};
    const int height = gallery::states_height + gallery::lists_height;
    QImage picture(scale.px(gallery::sheet_width), scale.px(height), QImage::Format_RGB32);
    QPainter painter(&picture);
    const gallery::Sheet sheet(painter, scale);
    paint::faceplate(painter, scale,
                     sheet.place(0, 0, gallery::sheet_width, gallery::states_height));
    paint::faceplate(
        painter, scale,
        sheet.place(0, gallery::states_height, gallery::sheet_width, gallery::lists_height));
    gallery::draw_states(sheet);
    gallery::draw_lists(sheet, gallery::states_height + 10);
    painter.end();

    if (!picture.save(arguments[1])) {
        std::fprintf(stderr, "gallery: cannot write %s\n", qPrintable(arguments[1]));
        return 1;
    }
    return 0;
}
