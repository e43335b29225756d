#include "settings/settings_bench.h"

#include "settings/settings_workflow.h"

#include <gtest/gtest.h>

namespace orvane {

namespace {

const std::string SavedPath = "/program/saved.stg";

struct WorkflowBench : ExampleBench {
    fakes::ScriptedDialog dialog;
    SettingsWorkflow workflow{file, dialog, desktop.platform};
};

} // namespace

TEST(SettingsWorkflow, TheEndWritesSavedSettingsAnewAndTheStartReadsThem) {
    WorkflowBench bench;
    bench.workflow.AtEnd(); // nothing to delete is no failure
    bench.settings.SampleSize = 61;
    bench.workflow.AtEnd();
    EXPECT_EQ(bench.desktop.files.Log,
              (Texts{"replace " + SavedPath, "delete " + SavedPath, "replace " + SavedPath}));
    bench.settings.SampleSize = 0;
    bench.workflow.AtStart();
    EXPECT_EQ(bench.settings.SampleSize, 61);
    EXPECT_EQ(bench.Said(), "");
    EXPECT_TRUE(bench.dialog.Shown.empty());
}

TEST(SettingsWorkflow, TheEndKeepsWhatItCanAndReportsOnce) {
    WorkflowBench bench;
    bench.grid.Name({"\u2265", "b", "c"});
    bench.workflow.AtEnd();
    EXPECT_NE(bench.Disk(SavedPath).find("]\r\n?\r\nb\r\nc\r\n["), std::string::npos);

    bench.workflow.AtStart();
    EXPECT_EQ(bench.grid.Names().at(0), "?");
    bench.desktop.files.Closed = {SavedPath};
    bench.workflow.AtEnd();
    EXPECT_EQ(bench.Said(), "report");
    bench.workflow.AtStart();
    EXPECT_EQ(bench.Said(), "report");
    bench.desktop.files = {};
    bench.workflow.AtStart();
    EXPECT_EQ(bench.Said(), "report");
}

TEST(SettingsWorkflow, CommandsAskForTheFileAndSayWhatTheyDid) {
    WorkflowBench bench;
    bench.dialog.Flags = 7;
    bench.dialog.Answers = {"/home/a.stg"};
    bench.Disk("/home/a.stg") = Joined(ExampleLines);
    bench.workflow.LoadSettings();
    EXPECT_EQ(bench.Said(), "Settings were loaded successfully!");
    bench.dialog.Answers = {"/home/plain"};
    bench.workflow.SaveSettingsAs();
    EXPECT_EQ(bench.Said(), "Settings were saved successfully!");
    EXPECT_EQ(bench.Disk("/home/plain"), Joined(ExampleLines));

    ASSERT_EQ(bench.dialog.Shown.size(), 2U);
    for (const fakes::ScriptedDialog::Look& look : bench.dialog.Shown) {
        EXPECT_EQ(look.flags, look.save ? 2 : 7);
        EXPECT_EQ(look.title, look.save ? "Save Settings As..." : "Select the Settings file");
        EXPECT_EQ(look.fileName, "settings");
        EXPECT_EQ(look.filter, "Settings file (*.stg)|*.stg");
    }
    EXPECT_TRUE(bench.dialog.Shown[1].save);
    EXPECT_EQ(bench.dialog.DefaultExt, "htm");
}

TEST(SettingsWorkflow, ACancelIsQuietAndAFailureReportedOnce) {
    WorkflowBench bench;
    for (const bool fails : {false, true}) {
        if (fails)
            bench.dialog.Fails = Failure("no prompt", 5, "");
        bench.workflow.LoadSettings();
        EXPECT_EQ(bench.Said(), fails ? "report" : "");
        bench.workflow.SaveSettingsAs();
        EXPECT_EQ(bench.Said(), fails ? "report" : "");
    }
    EXPECT_TRUE(bench.desktop.files.Log.empty());
    EXPECT_EQ(bench.Values(), ExampleBench().Values());

    bench.dialog.Fails.reset();
    bench.dialog.Answers = {"/home/missing.stg", "/home/a.stg"};
    bench.workflow.LoadSettings();
    EXPECT_EQ(bench.Said(), "report");
    bench.settings.prEqBlockSize = "\u2265";
    bench.workflow.SaveSettingsAs();
    EXPECT_EQ(bench.Said(), "report");
    EXPECT_TRUE(bench.desktop.files.Log.empty());
}

} // namespace orvane
