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
    /// Replaces saved.stg by the current inputs. Shows no message when everything was saved. Reports a
    /// failure itself: if the texts are too large to be read again, the old file stays unchanged; characters
    /// that the code page cannot hold are in the file as "?"; after any other failure the file is missing or
    /// incomplete.
    void AtEnd();

    /// Ask for a file, read or write it, and show a message. After a cancel nothing happens.
    void LoadSettings();
    void SaveSettingsAs();

    /// The path chosen in a prompt; empty after a cancel and after a failure, which was then reported.
    std::string GetSettingsFile();
    std::string GetSaveAsFile();

  private:
    void DeleteIfPossible(const std::string& path);

    SettingsFile& file_;
    CommonDialog& CMDialog_;
    Platform& desktop_;
};

} // namespace orvane
