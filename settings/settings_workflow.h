// When settings are read and written, and in which file.
#pragma once

#include "platform/common_dialog.h"
#include "platform/platform.h"
#include "settings/settings_file.h"

#include <string>

namespace orvane {

class SettingsWorkflow {
  public:
    SettingsWorkflow(SettingsFile& file, CommonDialog& CMDialog, Platform& desktop)
        : file_(file), CMDialog_(CMDialog), desktop_(desktop) {}

    /// Reads saved.stg in the program's directory. Shows no message on success.
    void AtStart();
    /// Replaces saved.stg by the current inputs, as SettingsFile::ReplaceSettings does.
    void AtEnd();

    /// Ask for a file, read or write it, and show a message. After a cancel nothing happens.
    void LoadSettings();
    void SaveSettingsAs();

  private:
    // The path chosen in a prompt; empty after a cancel and after a failure, which was then reported.
    std::string GetSettingsFile();
    std::string GetSaveAsFile();
    std::string Ask(const char* title, void (CommonDialog::*show)());

    SettingsFile& file_;
    CommonDialog& CMDialog_;
    Platform& desktop_;
};

} // namespace orvane
