// The toolkit's application for tests that show windows.
#pragma once

#include <QApplication>

#include <string>

namespace orvane {

/// The one application of the test program, made at the first call. It shows the toolkit's own prompts, which
/// tests can fill in.
inline QApplication& TestApplication() {
    static QApplication* const application = [] {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
        static std::string name = "tests";
        static char* arguments[] = {name.data(), nullptr};
        static int count = 1;
        // Lives as long as the program: windows of tests that end late still find it.
        return new QApplication(count, arguments);
    }();
    return *application;
}

} // namespace orvane
