// The least that a program with a window can be; the start of the real one is measured beside it.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(480, 300);
    window.show();
    return QApplication::exec();
}
