#include "settings/settings_workflow.h"

#include "platform/failure_report.h"

namespace orvane {

namespace {

constexpr const char* SavedSettings = "saved.stg";
constexpr const char* OfferedName = "settings";
constexpr const char* SettingsFilter = "Settings file (*.stg)|*.stg";

} // namespace

void SettingsWorkflow::AtStart() {
    file_.SetSettings(desktop_.BesideProgram(SavedSettings), false);
}

void SettingsWorkflow::AtEnd() {
    file_.ReplaceSettings(desktop_.BesideProgram(SavedSettings));
}

void SettingsWorkflow::LoadSettings() {
    file_.SetSettings(GetSettingsFile(), true);
}

void SettingsWorkflow::SaveSettingsAs() {
    const std::string path = GetSaveAsFile();
    if (!path.empty())
        file_.SaveSettings(path, true);
}

std::string SettingsWorkflow::GetSettingsFile() {
    return Ask("Select the Settings file", &CommonDialog::ShowOpen);
}

std::string SettingsWorkflow::GetSaveAsFile() {
    CMDialog_.Flags = CommonDialog::OverwritePrompt;
    return Ask("Save Settings As...", &CommonDialog::ShowSave);
}

std::string SettingsWorkflow::Ask(const char* title, void (CommonDialog::*show)()) {
    std::string path;
    WithFailurePath(desktop_.Messages, [&] {
        CMDialog_.FileName = OfferedName;
        CMDialog_.DialogTitle = title;
        CMDialog_.Filter = SettingsFilter;
        (CMDialog_.*show)();
        path = CMDialog_.FileName;
    });
    return path;
}

} // namespace orvane
