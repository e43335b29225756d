#include "engine/random_draws.h"
#include "engine/subject_codes.h"
#include "lists/text_report.h"
#include "platform/failure_report.h"

namespace orvane {

namespace {

constexpr std::int32_t BlankWidth = 3;
constexpr std::int32_t RuleWidthOfColumn = 13;
constexpr int NameLength = 8;
/// There are 36^8 names: if 1000 in a row exist already, the answers of the file system are wrong.
constexpr int MostTries = 1000;

std::string DrawName(UniformSource& random) {
    std::string name;
    for (int drawn = 0; drawn < NameLength; ++drawn) {
        const std::int16_t index =
            DrawRandomInt(random, 0, static_cast<std::int16_t>(AlphaNumChar.size() - 1));
        name += AlphaNumChar[static_cast<std::size_t>(index)];
    }
    return name;
}

std::string FreeTemporaryPath(const Platform& desktop) {
    for (int tries = 0; tries < MostTries; ++tries) {
        std::string path = desktop.BesideProgram(DrawName(desktop.Random) + ".tmp");
        if (!desktop.FileSystem.Exists(path))
            return path;
    }
    throw Failure("No name is free for a temporary file in the folder " + desktop.ProgramDirectory,
                  failure_number::OutOfRange, "OutputToWindow");
}

void WriteWindowList(const ReportContext& context, const std::string& path) {
    const Platform& desktop = context.Desktop;
    RequireMappableNames(context);
    TextFileWriter file(desktop.FileSystem.CreatePrivate(path), desktop.Page, Unmappable::Fail);
    PositionedCells cells(file, BlankWidth, GetMaxCol(context.Settings) * RuleWidthOfColumn);
    WalkCells(context, cells);
    file.Close();
}

} // namespace

void OutputToWindow(const ReportContext& context, OutputWindow& window) {
    const std::string path = FreeTemporaryPath(context.Desktop);
    WithFailurePath(context.Desktop.Messages, [&] {
        WriteWindowList(context, path);
        window.OutputFileName(path, true);
        window.ShowModal();
    });
}

} // namespace orvane
