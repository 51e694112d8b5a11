// The least that a Qt program can show: what the start of Zephyne is compared with.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.setFixedSize(600, 407);
    window.show();
    return QApplication::exec();
}
