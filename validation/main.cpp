// Checks the delivered program and writes the record of validation.
#include "validation/arguments.h"
#include "validation/concealment.h"
#include "validation/conclusion.h"
#include "validation/identity.h"
#include "validation/json_record.h"
#include "validation/known_answers.h"
#include "validation/lists.h"
#include "validation/output_folder.h"
#include "validation/page.h"
#include "validation/print.h"
#include "validation/record.h"
#include "validation/statistics.h"
#include "validation/work_folder.h"
#include "validation/wrong_programs.h"

#include <chrono>
#include <exception>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace {

using namespace orvane::validation;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr const char* PageName = "validation-record.htm";
constexpr const char* PdfName = "validation-record.pdf";
constexpr const char* JsonName = "validation-record.json";

std::string InWords(Clock::duration time) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time).count();
    return std::to_string(seconds / 60) + " min " + std::to_string(seconds % 60) + " s";
}

void RunChecks(Record& record, const Scale& scale, const ListWorkplace& place) {
    CheckKnownAnswers(record, scale);
    CheckLists(record, scale, place);
    CheckStatistics(record, scale);
    CheckConcealment(record, scale);
    CheckStatisticsChecks(record, scale);
    CheckListChecks(record, scale);
}

/// The evidence files that the checks have put into the folder of the record.
std::vector<Row> EvidenceIn(const fs::path& folder) {
    std::vector<Row> files = FilesBelow(folder);
    std::erase_if(files, [](const Row& file) { return file[0] == UnfinishedMark; });
    return files;
}

/// Prints the page as it is before this check, to find out whether the finished page can be printed.
void CheckPrinting(Record& record, const Run& run, const fs::path& work) {
    record.Run("USE-3.1", "USE-3", "The record is printed to PDF on A4", Chapter::KnownAnswers,
               [&](Evidence& evidence) {
                   const int pages = PagesOf(PrintedPage(RecordPage(record, run), work));
                   evidence.Demand(pages > 1, "The PDF has " + std::to_string(pages) + " pages.");
                   evidence.Paragraph("Chromium printed the record on " + std::to_string(pages) + " pages.");
               });
}

bool IsPrintable(const Record& record) {
    return record.Checks().back().Outcome == Result::Passed;
}

int Validate(const Arguments& arguments) {
    const Clock::time_point start = Clock::now();
    const WorkFolder work;
    work.RemoveOnSignals();
    RequireProgram(arguments.App);
    const OutputFolder output(arguments.Output);
    Run run;
    run.What = Identify(arguments.App, arguments.Sources);
    run.Quick = arguments.Quick;
    std::cout << "Validation of " << run.What.Program << " " << run.What.Version << " in "
              << arguments.App.string() << (run.Quick ? ", quick form" : "") << std::endl;

    Record record;
    RunChecks(record, {run.Quick}, {fs::canonical(arguments.App), output.Path()});
    run.Duration = InWords(Clock::now() - start);
    run.Evidence = EvidenceIn(output.Path());
    CheckPrinting(record, run, work.Path());

    std::map<std::string, std::string> files;
    files[PageName] = RecordPage(record, run);
    if (IsPrintable(record))
        files[PdfName] = PrintedPage(files[PageName], work.Path());
    files[JsonName] = RecordJson(record, run);
    output.Finish(files);

    std::cout << "\nThe record: " << (output.Path() / PageName).string() << "\n";
    for (const std::string& line : Conclusion(record))
        std::cout << line << "\n";
    std::cout.flush();
    return AllPassed(record) ? 0 : 1;
}

} // namespace

int main(int count, char** words) {
    try {
        return Validate(ReadArguments(std::vector<std::string>(words + 1, words + count)));
    } catch (const std::exception& error) {
        std::cerr << "\nNo record was written: " << error.what() << "\n";
    } catch (...) {
        std::cerr << "\nNo record was written.\n";
    }
    return 2;
}
