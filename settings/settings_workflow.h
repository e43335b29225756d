// When settings are read and written, and on which file.
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

    /// Reads saved.stg beside the program, without a message on success.
    void AtStart();
    /// Writes saved.stg anew from the live state. Without a message when all could be saved. Reports a
    /// failure itself: texts that are too large to be read again leave the old file as it is, characters that
    /// the code page cannot hold are in the file as "?", after any other failure the file is gone or
    /// incomplete.
    void AtEnd();

    /// Ask for a file, read it or write it, and say so. A cancel ends them without a word.
    void LoadSettings();
    void SaveSettingsAs();

    /// The path chosen in a prompt, empty after a cancel or a reported failure.
    std::string GetSettingsFile();
    std::string GetSaveAsFile();

  private:
    void DeleteIfPossible(const std::string& path);

    SettingsFile& file_;
    CommonDialog& CMDialog_;
    Platform& desktop_;
};

} // namespace orvane
