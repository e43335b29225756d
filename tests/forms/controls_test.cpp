// What the windows are made of, and what stands behind them.

#include "forms/event_guard.h"
#include "forms/system_info.h"
#include "windows.h"

#include <QClipboard>

namespace orvane {
namespace {

struct LineBoxTest : WindowTest {
    LineBoxTest() {
        other.setGeometry(0, 0, 100, 20);
        box.setGeometry(0, 30, 100, 20);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other.setFocus();
    }
    QWidget window;
    QLineEdit other{&window};
    LineBox box{&window};
};

TEST_F(LineBoxTest, OfAPastedTextTheFirstLineCountsAndTheProgramsTextIsTakenToTheLetter) {
    const std::string noLimit(40000, 'x');
    // The text of the program, the cursor, how much is selected, what is pasted, the text then.
    const std::vector<std::tuple<std::string, int, int, std::string, std::string>> rows = {
        {"", 0, 0, "one\r\ntwo", "one"},
        {"abcd", 2, 0, "x\ny\nz", "abxcd"},
        {"abcd", 1, 2, "x\xE2\x80\xA8y", "axd"},
        {"abcd", 1, 2, "x\xE2\x80\xA9y", "axd"},
        {"abcd", 4, 0, "\nx", "abcd"},
        {"aa", 1, 0, "a\ra", "aaa"},
        {"set\nby\rit", 3, 0, "x", "setx\nby\rit"},
        {"nul \0 inside\0\x01\x7F"s, 15, 0, "x", "nul \0 inside\0\x01\x7Fx"s},
        {"\xEF\xBB\xBFmark", 5, 0, "\ttab and \x01", "\xEF\xBB\xBFmark\ttab and \x01"},
        {"", 0, 0, noLimit, noLimit}};
    for (const auto& [before, cursor, selected, pasted, after] : rows) {
        int changes = 0;
        box.clear();
        const auto counting = QObject::connect(&box, &QLineEdit::textChanged, [&] { ++changes; });
        box.SetText(before);
        box.SetText(before);
        EXPECT_EQ(box.Text(), before);
        EXPECT_EQ(changes, before.empty() ? 0 : 1);
        QObject::disconnect(counting);
        const qsizetype behind = box.text().size() - cursor - selected;
        box.setCursorPosition(cursor);
        box.setSelection(cursor, selected);
        QGuiApplication::clipboard()->setText(QString::fromStdString(pasted));
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(box.Text(), after);
        EXPECT_EQ(box.cursorPosition(), box.text().size() - behind);
    }
}

TEST_F(LineBoxTest, ThePressThatBringsTheFocusLeavesTheWholeTextSelected) {
    box.SetText("some text");
    QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(20, 10));
    QTest::mouseMove(&box, QPoint(40, 10));
    QTest::mouseRelease(&box, Qt::LeftButton, {}, QPoint(40, 10));
    EXPECT_EQ(box.selectedText(), "some text");
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_EQ(box.selectedText(), "");
}

TEST_F(LineBoxTest, TheFocusSelectsTheTextInEveryWayButTheReturnOfTheWindow) {
    box.SetText("text");
    for (const auto& [reason, selects] : {std::pair(Qt::BacktabFocusReason, true),
                                          {Qt::OtherFocusReason, true},
                                          {Qt::PopupFocusReason, false},
                                          {Qt::MenuBarFocusReason, false},
                                          {Qt::ActiveWindowFocusReason, false}}) {
        box.deselect();
        QFocusEvent event(QEvent::FocusIn, reason);
        QApplication::sendEvent(&box, &event);
        EXPECT_EQ(box.hasSelectedText(), selects) << reason;
    }
    for (int time = 1; time <= 2; ++time) {
        box.deselect();
        box.TakeFocus();
        EXPECT_EQ(box.selectedText(), "text");
    }
    other.setFocus();
    QWidget front;
    front.show();
    front.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
    box.TakeFocus();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.selectedText(), "text");
}

struct GridTest : WindowTest {
    FlexGridWidget grid;
};

TEST_F(GridTest, TellsAChangeOfTheCurrentCellOnceAndHasNoOtherCells) {
    grid.setColumnCount(2);
    grid.SetRows(4);
    int changes = 0;
    grid.OnRowColChange([&] { ++changes; });
    grid.SetRow(3);
    grid.SetRow(3);
    EXPECT_EQ(changes, 1);
    grid.SetText("\xEF\xBB\xBFn\0"s);
    EXPECT_EQ(grid.Text(), "\xEF\xBB\xBFn\0"s);
    grid.SetRows(3);
    grid.SetRows(4);
    EXPECT_EQ(grid.Row() * 10 + changes, 22);
    EXPECT_EQ(grid.TextMatrix(3, 1), "");
    grid.SetRow(0);
    for (const auto& [row, col] : {std::pair(4, 0), {-1, 0}, {0, 2}, {0, -1}})
        EXPECT_THROW(static_cast<void>(
                         grid.TextMatrix(static_cast<std::int16_t>(row), static_cast<std::int16_t>(col))),
                     Failure);
    EXPECT_THROW(grid.SetRows(0), Failure);
    grid.OnRowColChange([] { throw Failure("from the handler", 1, "test"); });
    EXPECT_THROW(grid.SetCol(0), Failure);
    grid.OnRowColChange({});
    grid.SetRows(1);
    EXPECT_EQ(grid.Row(), 0);
}

TEST(EventGuard, AFailureBelongsToTheStatementThatCausedItAndIsReportedOnceUnderTheNormalPointer) {
    FakeDesktop desktop;
    EventGuard guard(desktop.messages, desktop.pointer);
    const auto moveAControl = [&] {
        guard.Calling([&] { guard.Handle([] { throw Failure("inner", 1, "test"); }); });
    };
    bool seen = false;
    guard.Handle([&] {
        EXPECT_THROW(moveAControl(), Failure);
        seen = guard.IsHandling();
    });
    EXPECT_TRUE(seen && !guard.IsHandling());
    EXPECT_EQ(desktop.messages.Take(), "");
    desktop.pointer.ShowBusy();
    desktop.messages.WhileShown = [&] { EXPECT_FALSE(desktop.pointer.Busy); };
    guard.Handle(moveAControl);
    EXPECT_EQ(desktop.messages.TakeAll().size(), 1U);
}

TEST(SystemInfo, StartsTheToolThatTheFirstKeyNames) {
    constexpr std::uint32_t text = REGISTRY_TYPE_STRING;
    constexpr std::uint32_t number = REGISTRY_TYPE_NUMBER;
    const std::string beside = "/dir/MSINFO32.EXE";
    const std::string longest(1024, 'x');
    // What the first key holds and what is started, "" for the message. The second key names a folder.
    const std::vector<std::tuple<std::uint32_t, std::string, std::string>> rows = {
        {text, "C:\\x.exe\0"s, "C:\\x.exe"},
        {text, "no terminator", "no terminator"},
        {text, "two\0\0"s, "two\0"s},
        {text, "\0"s, ""},
        {text, "", beside},
        {text, longest, longest},
        {text, longest + "x", beside},
        {number, "\x01\0\0\0"s, "1"},
        {number, "\x0D\x0C\x0B\x0A", "43981"},
        {number, "\xFF\xFF\xFF\xFF", "4294967295"},
        {number, "\xA0\x86\x01\0"s, "100000"},
        {number, "\0\0\0\0"s, "0"},
        {number, std::string(1000, '\xFF'), ""},
        {3, "binary", ""}};
    FakeDesktop desktop;
    const auto expect = [&](const std::string& started) {
        desktop.shell.Started.clear();
        StartSysInfo(desktop.platform);
        EXPECT_EQ(desktop.messages.Take(),
                  started.empty() ? "System Information Is Unavailable At This Time" : "");
        EXPECT_EQ(desktop.shell.Started, started.empty() ? Texts{} : Texts{started});
        EXPECT_EQ(desktop.keys.Open, 0);
    };
    auto& first = desktop.keys.Values[R"(SOFTWARE\Microsoft\Shared Tools\MSINFO|PATH)"];
    desktop.keys.Values[R"(SOFTWARE\Microsoft\Shared Tools Location|MSINFO)"] = {text, "/dir\0"s};
    desktop.files.Contents[beside] = "";
    for (const auto& [type, bytes, started] : rows) {
        first = {type, bytes};
        expect(started);
    }
    desktop.files.Contents.clear();
    first = {text, ""};
    expect("");
    first = {text, "/tool"};
    desktop.shell.Fails = {"StartProgram"};
    expect("");
    desktop.keys.Values.clear();
    expect("");
}

} // namespace
} // namespace orvane
