#include "validation/list_maker.h"

#include <chrono>
#include <csignal>
#include <thread>

namespace orvane::validation {

namespace fs = std::filesystem;

using driving::Deadline;
using driving::Fault;
using driving::Message;

namespace {

std::string Rights(const fs::path& file) {
    const auto has = fs::status(file).permissions();
    std::string text;
    constexpr std::string_view letters = "rwxrwxrwx";
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const auto bit = static_cast<fs::perms>(0400U >> i);
        text += (has & bit) == fs::perms::none ? '-' : letters[i];
    }
    return text;
}

std::string FirstLine(const std::string& text) {
    return text.substr(0, text.find('\n'));
}

std::string WithoutReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

template <typename Come>
bool CameWithin(std::chrono::seconds patience, const Come& come) {
    for (Deadline deadline(patience); !come();) {
        if (deadline.Passed())
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

} // namespace

ListMaker::ListMaker(const fs::path& program, const fs::path& evidence)
    : user_(desktop_, program), setUp_(desktop_, user_), evidence_(evidence) {
    fs::create_directories(evidence);
}

MadeList ListMaker::Make(const ListSetup& setup) {
    MadeList list;
    list.Setup = setup;
    try {
        if (!desktop_.Running())
            Restart(setup);
        setUp_.Give(setup);
        Generate(list);
        ReadBack(list);
    } catch (const std::exception& error) {
        list.NotMade = FirstLine(error.what());
        Kill();
    }
    return list;
}

void ListMaker::Restart(const ListSetup& setup) {
    Kill();
    driving::WriteFile(user_.SavedSettings(), SettingsBytes(setup));
    user_.StartProgram();
    user_.AwaitMain();
}

void ListMaker::Kill() {
    try {
        if (desktop_.Running()) {
            desktop_.Signal(SIGKILL);
            desktop_.AwaitEnd();
        }
    } catch (const Fault&) { // NOLINT(bugprone-empty-catch): the next start reports it
    }
}

void ListMaker::Generate(MadeList& list) {
    const fs::path file = fs::absolute(evidence_ / FileName(list.Setup));
    fs::remove(file);
    list.File = file.string();
    switch (list.Setup.Output) {
    case Form::Window:
        TakeFromWindow(list);
        break;
    case Form::Clipboard:
        TakeFromClipboard(list);
        break;
    default:
        TakeFile(list);
    }
    user_.AwaitMain();
}

void ListMaker::TakeFile(MadeList& list) {
    const std::size_t viewed = desktop_.Viewed().size();
    user_.Answer(desktop_.Await(driving::SaveListTitle), list.File);
    TakeRunsMessage(list);
    user_.AwaitMain();
    if (CameWithin(std::chrono::seconds(10), [&] { return desktop_.Viewed().size() > viewed; }))
        list.Viewer = desktop_.Viewed().back();
    list.Bytes = driving::ReadFile(list.File);
}

void ListMaker::TakeFromWindow(MadeList& list) {
    const driving::Window output = desktop_.Await(driving::OutputTitle);
    WindowSeen seen;
    user_.AwaitControl(driving::OutputTitle, "the list", [&](const driving::Control& control) {
        seen.Text = WithoutReturns(control.Text);
        return control.Role == "text" && !seen.Text.empty();
    });
    for (const fs::path& file : TemporaryFiles())
        seen.TemporaryFiles.push_back(Rights(file));
    user_.TabTo(driving::OutputTitle, "Save");
    desktop_.Press({"space"});
    const driving::Window prompt = desktop_.Await(driving::SaveOutputTitle);
    user_.Answer(prompt, list.File);
    desktop_.AwaitGone(prompt);
    user_.TabTo(driving::OutputTitle, "Close");
    desktop_.Press({"space"});
    desktop_.AwaitGone(output);
    TakeRunsMessage(list);
    user_.AwaitMain();
    CameWithin(std::chrono::seconds(1), [&] { return TemporaryFiles().empty(); });
    for (const fs::path& file : TemporaryFiles())
        seen.LeftBehind.push_back(file.filename().string());
    list.Window = seen;
    list.Bytes = driving::ReadFile(list.File);
}

void ListMaker::TakeFromClipboard(MadeList& list) {
    const Message message = user_.AwaitMessage();
    if (message.Text != "Data were copied into clipboard successfuly!")
        throw Fault("the message after copying: " + message.Text);
    list.Bytes = desktop_.Pasted();
    driving::WriteFile(list.File, list.Bytes);
    user_.Confirm(message);
    TakeRunsMessage(list);
}

void ListMaker::TakeRunsMessage(MadeList& list) {
    if (!list.Setup.RunsTest())
        return;
    const Message message = user_.AwaitMessage();
    list.RunsMessage = WithoutReturns(message.Text);
    user_.Confirm(message);
}

std::vector<fs::path> ListMaker::TemporaryFiles() const {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(user_.Folder()))
        if (entry.path().extension() == ".tmp")
            files.push_back(entry.path());
    return files;
}

} // namespace orvane::validation
