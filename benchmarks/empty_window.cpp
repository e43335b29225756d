// The least that a program with a window can be, and with an argument a window with that one line of text:
// what the start of the program is compared with.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QMainWindow window;
    if (argc > 1)
        window.setCentralWidget(new QLabel(argv[1]));
    window.show();
    return QApplication::exec();
}
