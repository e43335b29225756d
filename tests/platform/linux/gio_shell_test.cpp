#include "platform/linux/gio_shell.h"

#include "fakes/temporary_folder.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

namespace orvane {
namespace {

/// A desktop with a viewer of its own for web pages and texts, and one for pictures that cannot be run.
class StubDesktop {
  public:
    StubDesktop() {
        // Tells how many arguments there are, then each on its line; complete when it has its name.
        const std::string part = "'" + folder.Path("part") + "'";
        Register("viewer", folder.Put("bin/viewer",
                                      "#! /bin/sh -e\nprintf '%s\\n' \"$#\" \"$@\" > " + part + "\nmv " +
                                          part + " '" + folder.Path("told") + "'\n",
                                      true));
        Register("broken", folder.Put("bin/broken", "#! /no/such/interpreter\n", true));
        Register("quoted", "\"" + folder.Path("bin/viewer") + "\"");
        Register("variable", "env NAME=\"some value\" " + folder.Path("bin/viewer"));
        Register("open", "\"" + folder.Path("bin/viewer"));
        folder.Put("config/mimeapps.list", "[Default Applications]\ntext/html=viewer.desktop\n"
                                           "text/plain=viewer.desktop\nimage/png=broken.desktop\n");
        ::setenv("XDG_DATA_HOME", folder.Path("data").c_str(), 1);
        ::setenv("XDG_DATA_DIRS", "/usr/share", 1);
        ::setenv("XDG_CONFIG_HOME", folder.Path("config").c_str(), 1);
        ::setenv("XDG_CONFIG_DIRS", folder.Path("none").c_str(), 1);
        ::unsetenv("XDG_CURRENT_DESKTOP");
    }

    /// What the viewer tells of its arguments; empty if it does not start.
    [[nodiscard]] std::string Told() const {
        for (int i = 0; i < 1000 && !std::filesystem::exists(folder.Path("told")); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        std::string told = folder.Get("told");
        std::filesystem::remove(folder.Path("told"));
        return told;
    }

    const fakes::TemporaryFolder folder;

  private:
    void Register(const std::string& name, const std::string& program) const {
        folder.Put("data/applications/" + name + ".desktop",
                   "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + program + " %f\n");
    }
};

// Stands before GLib looks at the environment for the first time.
const StubDesktop desktop; // NOLINT(cert-err58-cpp)

TEST(GioShell, StartsTheAssociatedProgramWithTheUntouchedPath) {
    GioShell shell;
    for (const char* const name : {"list.htm", "a b \"c\" 'd' $HOME `x` ü %f;&.htm", "Größe 100%.txt"}) {
        const std::string path = desktop.folder.Put(name, "<html>");
        std::string program;
        ASSERT_GT(shell.FindExecutableA(path, program), 32) << name;
        for (const char* const entry : {"viewer", "quoted", "variable"}) {
            const std::string form =
                desktop.folder.Path(std::string("data/applications/") + entry + ".desktop");
            ASSERT_GT(shell.ShellExecuteA(0, form, path), 32) << form;
            EXPECT_EQ(desktop.Told(), "1\n" + path + "\n") << form;
        }
        EXPECT_EQ(program, desktop.folder.Path("data/applications/viewer.desktop"));
    }
}

TEST(GioShell, TellsWhatIsNotFoundFromWhatDoesNotStart) {
    GioShell shell;
    std::string program = "before";
    std::filesystem::create_symlink("nowhere", desktop.folder.Path("dangling.htm"));
    const std::string picture = desktop.folder.Put("picture.png", "x");
    for (const std::string& path : {desktop.folder.Path("missing.htm"), desktop.folder.Path("dangling.htm"),
                                    std::string(), desktop.folder.Put("list.zip", "PK")})
        EXPECT_LE(shell.FindExecutableA(path, program), 32) << path;
    EXPECT_EQ(program, "before");
    EXPECT_GT(shell.FindExecutableA(picture, program), 32);
    for (const std::string& form : {program, desktop.folder.Path("data/applications/open.desktop"),
                                    std::string("/no/program"), std::string()})
        EXPECT_LE(shell.ShellExecuteA(0, form, picture), 32) << form;
}

TEST(GioShell, StartsAProgramOrFails) {
    GioShell shell;
    shell.StartProgram(desktop.folder.Path("bin/viewer"));
    EXPECT_EQ(desktop.Told(), "0\n");
    for (const std::string& path : {desktop.folder.Path("bin/broken"), desktop.folder.Path("bin/missing"),
                                    desktop.folder.Path("bin"), desktop.folder.Put("plain", "x")}) {
        try {
            shell.StartProgram(path);
            ADD_FAILURE() << path;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, failure_number::CannotStart);
            EXPECT_NE(failure.Description.find(path), std::string::npos) << failure.Description;
        }
    }
}

} // namespace
} // namespace orvane
