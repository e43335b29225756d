#include "validation/report.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>

#include <algorithm>

namespace orvane::validation {

namespace {

/// A chapter that holds checks.
struct ChapterHead {
    Chapter Place;
    const char* Title;
    const char* Intro;
};

constexpr ChapterHead Chapters[] = {
    {Chapter::Lists, "Lists",
     "The program made these lists through its windows. Each was read back from its bytes by a reader that "
     "shares nothing with the program, and held against the rules. The lists are kept with this record."},
    {Chapter::KnownKey, "Known key",
     "A library that was loaded before the program gave it a known key and a known time of day in place of "
     "those of the operating system. A second program, written from the description of the first and without "
     "a line of it, predicts the same lists. They must be equal to the byte."},
    {Chapter::Refusals, "No entropy, refusals, settings",
     "What the program refuses, with which message, and what it does with settings."},
    {Chapter::Statistics, "Statistics",
     "Long lists that the program made with the entropy of this machine. The P value is the probability that "
     "a right program gives a sample that differs at least as much from its hypothesis."},
    {Chapter::Guessing, "Guessing",
     "How often an investigator is right who knows all earlier assignments and always names the group that "
     "is the rarest so far (Blackwell and Hodges 1957). The figures are exact; nothing is simulated."},
    {Chapter::PlantedFaults, "Planted faults", "Each fault was made on purpose and must be found."},
};

constexpr const char* Limits[] = {
    "The unpredictability of the random data of the operating system. The record shows that the program uses "
    "them, all of them, and makes no list without them.",
    "The \"P value\" of the Runs test is the height of the normal curve at z, not a probability: it is at "
    "most 0.3989, and a level of 0.05 rejects other blocks than a test at 5 per cent. The record shows that "
    "the "
    "program calculates it as documented, not that the test suits a trial.",
    "Names of groups stand in a web page as they were typed. A name with characters such as < may be shown "
    "otherwise by a browser; the bytes of the page are right.",
    "Other machines, desktops, languages, code pages and versions of libraries than those of chapter 1. File "
    "prompts of other desktops were not opened.",
    "Programs of the desktop that show, edit or print a finished list.",
    "What happens to a list after the program has written it: who can read it, and whether subjects get the "
    "treatment that it assigns to them.",
    "Whether groups, sample size and block option suit the protocol of a trial.",
};

QString Escaped(const std::string& text) {
    return QString::fromStdString(text).toHtmlEscaped().replace('\n', "<br>");
}

QString Paragraph(const QString& text) {
    return "<p>" + text + "</p>\n";
}

/// A table whose caption and head are repeated on each page. Tables with many columns or long sums are
/// printed smaller.
QString Table(const Exhibit& table) {
    const std::size_t columns = table.Head.size();
    const bool isWide = columns > 8 || table.Head.back() == "SHA-256";
    const QString size = columns > 20 ? "5.5pt" : isWide ? "6pt" : "8pt";
    const auto row = [&](const Row& cells, const QString& tag) {
        QString html = "<tr>";
        for (const std::string& cell : cells)
            html += QString("<%1 style='font-size:%2'>").arg(tag, size) + Escaped(cell) + "</" + tag + ">";
        return html + "</tr>\n";
    };
    QString html = QString("<table border='1' cellspacing='0' width='100%' cellpadding='%1'><thead><tr>"
                           "<td class='caption' colspan='%2'>%3</td></tr>")
                       .arg(isWide ? 1 : 3)
                       .arg(columns)
                       .arg(Escaped(table.Text));
    QString head = row(table.Head, "th");
    // The caption takes part in the layout of the columns, so that these need their widths in per cent.
    constexpr std::pair<const char*, int> widths[] = {
        {"SHA-256<", 58}, {"Requirement<", 58}, {"What it shows<", 58}, {"Value<", 58}, {"codes<", 14}};
    for (const auto& [name, width] : widths)
        head.replace(QString(">") + name, QString(" width='%1%'>").arg(width) + name);
    html += head + "</thead>\n";
    for (const Row& cells : table.Rows)
        html += row(cells, "td");
    return html + "</table>\n<p class='gap'>&nbsp;</p>\n";
}

QString FirstChapters(const Record& record, const Run& run) {
    QString html = "<h1>Validation record of Orvane Software " + Escaped(run.Version) +
                   "</h1><h2>1. Conclusion and identity</h2>";
    for (const std::string& line : Conclusion(record))
        html += Paragraph("<b>" + Escaped(line) + "</b>");
    if (record.Quick)
        html += Paragraph("<b>Quick form, with fewer lists and smaller samples. File a full validation.</b>");
    std::vector<Row> rows;
    for (const Requirement& requirement : Requirements()) {
        rows.push_back({requirement.Identifier, requirement.Text, ""});
        for (const Check& check : record.Checks)
            if (check.Requirement() == requirement.Identifier)
                rows.back()[2] +=
                    (rows.back()[2].empty() ? "" : ", ") + check.Identifier + " " + check.Result();
    }
    return html + Table({"What was examined", {"Fact", "Value"}, run.Facts}) +
           Table({"Delivered files", {"File", "Bytes", "SHA-256"}, run.Files}) +
           Table({"Files that the running program had mapped: libraries, fonts, the table of the code page "
                  "(gconv)",
                  {"File", "Folder", "SHA-256"},
                  run.Mapped}) +
           "<h2>2. Requirements</h2>" +
           Table({"Requirements and their checks, the most serious for a trial first",
                  {"Identifier", "Requirement", "Checks"},
                  rows});
}

QString ChapterOf(const Record& record, const ChapterHead& head) {
    std::vector<Row> rows;
    QString exhibits;
    for (const Check& check : record.Checks) {
        if (check.Place != head.Place)
            continue;
        rows.push_back({check.Identifier, check.Title, check.Result()});
        for (const std::string& fault : check.Faults)
            rows.push_back({"", fault, ""});
        if (!check.Comparisons.empty())
            exhibits += Table({check.Identifier + ": expected and observed",
                               {"What", "Expected", "Observed", "Result"},
                               check.Comparisons});
        for (Exhibit exhibit : check.Exhibits) {
            exhibit.Text = check.Identifier + ": " + exhibit.Text;
            exhibits += exhibit.Head.empty() ? Paragraph(Escaped(exhibit.Text)) : Table(exhibit);
        }
    }
    return QString("<h2>%1. %2</h2>").arg(static_cast<int>(head.Place)).arg(head.Title) +
           Paragraph(head.Intro) + Table({"Checks", {"Check", "What it shows", "Result"}, rows}) + exhibits;
}

QString LastChapter(const Run& run) {
    QString html = "<h2>9. Limits, checksums, signatures</h2><p>Not examined:</p><ul>";
    for (const char* limit : Limits)
        html += "<li>" + Escaped(limit) + "</li>\n";
    html += "</ul>" +
            Paragraph("The files of evidence beside this record are listed with their sums in SHA256SUMS, "
                      "whose own SHA-256 is " +
                      Escaped(run.Checksum) + ".");
    for (const char* role : {"Validation run by", "Record approved by"})
        html += Paragraph(QString("<br>") + role + ": name, date, signature<br><br>") + "<hr>";
    return html;
}

/// Prints the document page by page with a footer.
void Print(QTextDocument& document, QPdfWriter& writer, const QString& footer) {
    const QSizeF page = QSizeF(writer.width(), writer.height());
    const int footerHeight = writer.resolution() / 4;
    document.documentLayout()->setPaintDevice(&writer);
    document.setPageSize({page.width(), page.height() - footerHeight});
    QPainter painter(&writer);
    painter.setFont(QFont("DejaVu Sans", 7));
    for (int number = 0; number < document.pageCount(); ++number) {
        if (number > 0)
            writer.newPage();
        const QRectF part(QPointF(0, number * document.pageSize().height()), document.pageSize());
        painter.translate(-part.topLeft());
        document.drawContents(&painter, part);
        painter.resetTransform();
        painter.drawText(QPointF(0, page.height() - footerHeight / 4.0),
                         footer + QString(", page %1 of %2").arg(number + 1).arg(document.pageCount()));
    }
}

} // namespace

std::vector<std::string> Conclusion(const Record& record) {
    std::vector<std::string> lines = {""};
    for (const Check& check : record.Checks)
        if (!check.Faults.empty())
            lines.push_back("Chapter " + std::to_string(static_cast<int>(check.Place)) + ", " +
                            check.Identifier + " " + check.Title + ": " + check.Faults.front());
    for (const Requirement& requirement : Requirements())
        if (std::ranges::count(record.Checks, requirement.Identifier, &Check::Requirement) == 0)
            lines.push_back("Requirement " + requirement.Identifier + " has no check.");
    lines.front() = std::string("Conclusion: ") + (lines.size() == 1 ? "PASSED, " : "FAILED, ") +
                    std::to_string(record.Checks.size()) + " checks";
    return lines;
}

QByteArray RecordPdf(const Record& record, const Run& run) {
    QTextDocument document;
    document.setDefaultFont(QFont("DejaVu Sans", 9));
    document.setDefaultStyleSheet(
        "h1 { font-size: 16pt; } h2 { font-size: 13pt; margin-top: 16px; } "
        "th { text-align: left; background-color: #e6e6e6; } "
        ".caption { font-style: italic; font-size: 8pt; } .gap { font-size: 4pt; }");
    QString html = FirstChapters(record, run);
    for (const ChapterHead& head : Chapters)
        html += ChapterOf(record, head);
    document.setHtml(html + LastChapter(run));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(16, 15, 16, 12), QPageLayout::Millimeter);
    writer.setResolution(300);
    const QString title = "Validation record of Orvane Software " + QString::fromStdString(run.Version);
    writer.setTitle(title);
    Print(document, writer,
          title + (record.Quick ? ", quick form, " : ", ") + QString::fromStdString(run.Started));
    return bytes;
}

QByteArray RecordJson(const Record& record, const Run& run) {
    QJsonArray checks;
    for (const Check& check : record.Checks)
        checks.append(QJsonObject{{"identifier", QString::fromStdString(check.Identifier)},
                                  {"title", QString::fromStdString(check.Title)},
                                  {"result", QString::fromStdString(check.Result())}});
    return QJsonDocument(QJsonObject{{"version", QString::fromStdString(run.Version)},
                                     {"date", QString::fromStdString(run.Started)},
                                     {"quick", record.Quick},
                                     {"conclusion", Conclusion(record).size() == 1 ? "passed" : "failed"},
                                     {"checks", checks}})
        .toJson();
}

} // namespace orvane::validation
