#include "settings/settings_workflow.h"

#include "output/glb_util.h"
#include "platform/failure.h"

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
    const std::string path = desktop_.BesideProgram(SavedSettings);
    WithFailurePath(desktop_.Messages, false, [&] {
        file_.RequireReadableSize();
        DeleteIfPossible(path);
        file_.SaveSettings(path, false, Unmappable::QuestionMark);
    });
}

void SettingsWorkflow::DeleteIfPossible(const std::string& path) {
    try {
        desktop_.FileSystem.Delete(path);
    } catch (const Failure&) {
        // The file may not exist. Any other cause prevents the writing too, which then reports it.
    }
}

void SettingsWorkflow::LoadSettings() {
    file_.SetSettings(GetSettingsFile(), true);
}

void SettingsWorkflow::SaveSettingsAs() {
    const std::string path = GetSaveAsFile();
    if (!path.empty())
        file_.SaveSettings(path, true, Unmappable::Fail);
}

std::string SettingsWorkflow::GetSettingsFile() {
    std::string path;
    WithFailurePath(desktop_.Messages, true, [&] {
        CMDialog_.FileName = OfferedName;
        CMDialog_.DialogTitle = "Select the Settings file";
        CMDialog_.Filter = SettingsFilter;
        CMDialog_.ShowOpen();
        path = CMDialog_.FileName;
    });
    return path;
}

std::string SettingsWorkflow::GetSaveAsFile() {
    std::string path;
    WithFailurePath(desktop_.Messages, true, [&] {
        CMDialog_.Flags = CommonDialog::OverwritePrompt;
        CMDialog_.FileName = OfferedName;
        CMDialog_.DialogTitle = "Save Settings As...";
        CMDialog_.Filter = SettingsFilter;
        CMDialog_.ShowSave();
        path = CMDialog_.FileName;
    });
    return path;
}

} // namespace orvane
