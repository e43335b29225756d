// The smallest program with a window; with an argument, a window that shows it as one line of text. The
// start of the program is compared with the start of this one.
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
