// Checks the delivered program and writes the record of it.
#include "validation/run.h"

#include <QCommandLineParser>
#include <QGuiApplication>

#include <iostream>

namespace {

using namespace orvane::validation;
namespace driving = orvane::driving;
namespace fs = std::filesystem;

constexpr const char* JsonName = "validation-record.json";

struct Arguments {
    fs::path Program;
    fs::path Output;
    bool Quick;
    std::string Commit;
};

Arguments ReadArguments(const QCoreApplication& application) {
    QCommandLineParser parser;
    parser.addPositionalArgument("program", "The folder of the delivered program.");
    parser.addPositionalArgument("output", "The folder of the record, which is replaced.");
    parser.addOptions(
        {{"quick", "Fewer lists and smaller samples."}, {"commit", "The commit of the sources.", "text"}});
    parser.process(application);
    const QStringList folders = parser.positionalArguments();
    if (folders.size() != 2)
        parser.showHelp(2);
    return {folders[0].toStdString(), fs::absolute(folders[1].toStdString()), parser.isSet("quick"),
            parser.value("commit").toStdString()};
}

/// Writes the record beside its evidence, and then puts the whole in the place of the one before.
void Finish(const Record& record, Run& run, const fs::path& work, const fs::path& output) {
    std::string sums;
    for (const Row& file : FilesBelow(work))
        sums += file[2] + "  " + file[0] + "\n";
    driving::WriteFile(work / "SHA256SUMS", sums);
    run.Checksum = Sha256(work / "SHA256SUMS");
    driving::WriteFile(work / "validation-record.pdf", RecordPdf(record, run).toStdString());
    driving::WriteFile(work / JsonName, RecordJson(record, run).toStdString());
    fs::remove_all(output);
    fs::rename(work, output);
}

int Validate(const Arguments& arguments) {
    const fs::path& output = arguments.Output;
    if (!fs::is_regular_file(arguments.Program / "orvane"))
        throw std::runtime_error(arguments.Program.string() + " does not hold the program");
    if (fs::exists(output) && !fs::is_empty(output) && !fs::exists(output / JsonName))
        throw std::runtime_error(output.string() + " holds other things than a record");
    const fs::path work = output.string() + ".unfinished";
    fs::remove_all(work);
    Session session(arguments.Program, work / "lists");
    Run run = Identify(arguments.Program, session, arguments.Commit);
    std::cout << "Validation of version " << run.Version << " in " << arguments.Program << std::endl;
    Record record{arguments.Quick};
    const auto announce = [](const char* chapter) { std::cout << "Chapter " << chapter << std::endl; };
    announce("3 and 4, lists from known keys; 8, faults in them");
    CheckLists(record, session);
    CheckSecondProgram(record);
    announce("5, refusals and settings");
    CheckRefusals(record, session);
    announce("6, statistics; 8, faults in their samples");
    CheckStatistics(record, session);
    announce("7, guessing");
    CheckGuessing(record);
    Finish(record, run, work, output);
    const std::vector<std::string> conclusion = Conclusion(record);
    for (const std::string& line : conclusion)
        std::cout << line << "\n";
    std::cout << "The record is in " << output << std::endl;
    return conclusion.size() == 1 ? 0 : 1;
}

} // namespace

int main(int count, char** words) {
    try {
        // The document needs fonts and no display. The program inherits the variable as it was.
        const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
        qputenv("QT_QPA_PLATFORM", "offscreen");
        const QGuiApplication application(count, words);
        qputenv("QT_QPA_PLATFORM", platform);
        return Validate(ReadArguments(application));
    } catch (const std::exception& error) {
        std::cerr << "\nNo record was written: " << error.what() << "\n";
        return 2;
    }
}
