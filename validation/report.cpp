#include "validation/run.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextDocument>

#include <map>

namespace orvane::validation {
namespace {

QString Escaped(const std::string& text) {
    return QString::fromStdString(text).toHtmlEscaped().replace('\n', "<br>");
}

QString Paragraph(const std::string& text) {
    return "<p>" + Escaped(text) + "</p>\n";
}

/// A table whose caption and head are repeated on each page. Tables with many columns or long sums are
/// printed smaller.
QString Table(const Exhibit& table) {
    const std::size_t columns = table.Head.size();
    const bool isWide = columns > 8 || table.Head.back() == "SHA-256";
    const QString size = columns > 20 ? "5.5pt" : isWide ? "6pt" : "9pt";
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
        {"SHA-256<", 58}, {"Hypothesis<", 30}, {"What it shows<", 58}, {"Value<", 58}, {"codes<", 14}};
    for (const auto& [name, width] : widths)
        head.replace(QString(">") + name, QString(" width='%1%'>").arg(width) + name);
    html += head + "</thead>\n";
    for (const Row& cells : table.Rows)
        html += row(cells, "td");
    return html + "</table>\n<p class='gap'>&nbsp;</p>\n";
}

/// The text of the record. Words in braces mark the places for findings: a requirement such as {ASG-1} has
/// one for its checks.
QString RecordText() {
    QFile file(RECORD_TEXT);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("record.html cannot be read");
    return QString::fromUtf8(file.readAll());
}

/// The requirements of the text, each with its checks and their results.
std::map<std::string, std::string> Requirements(const Record& record) {
    std::map<std::string, std::string> requirements;
    for (const QRegularExpressionMatch& place :
         QRegularExpression("{([A-Z]+-\\d+)}").globalMatch(RecordText()))
        requirements[place.captured(1).toStdString()] = "";
    for (const Check& check : record.Checks) {
        std::string& checks = requirements.at(check.Requirement());
        checks += (checks.empty() ? "" : "\n") + check.Identifier + " " + check.Result();
    }
    return requirements;
}

/// The checks of a chapter and their evidence.
QString Evidence(const Record& record, Chapter chapter) {
    std::vector<Row> rows;
    QString exhibits;
    for (const Check& check : record.Checks) {
        if (check.Place != chapter)
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
            exhibits += exhibit.Head.empty() ? Paragraph(exhibit.Text) : Table(exhibit);
        }
    }
    return Table({"Checks", {"Check", "What it shows", "Result"}, rows}) + exhibits;
}

QString Filled(const Record& record, const Run& run, const QString& title) {
    QString html = RecordText();
    QString conclusion;
    for (const std::string& line : Conclusion(record))
        conclusion += "<b>" + Paragraph(line) + "</b>";
    html.replace("{title}", title).replace("{conclusion}", conclusion);
    html.replace("{identity}", Table({"What was examined", {"Fact", "Value"}, run.Facts}) +
                                   Table({"Delivered files", {"File", "Bytes", "SHA-256"}, run.Files}) +
                                   Table({"Files that the running program had mapped: libraries, fonts, the "
                                          "table of the code page (gconv)",
                                          {"File", "Folder", "SHA-256"},
                                          run.Mapped}));
    for (const auto& [requirement, checks] : Requirements(record))
        html.replace(QString("{%1}").arg(requirement.c_str()), Escaped(checks));
    for (int chapter = 3; chapter <= 8; ++chapter)
        html.replace(QString("{%1}").arg(chapter), Evidence(record, static_cast<Chapter>(chapter)));
    return html.replace("{checksum}", QString::fromStdString(run.Checksum));
}

/// Prints the document page by page with a footer.
void Print(QTextDocument& document, QPdfWriter& writer, const QString& footer) {
    const QRectF page(0, 0, writer.width(), writer.height() - writer.resolution() / 4.0);
    document.documentLayout()->setPaintDevice(&writer);
    document.setPageSize(page.size());
    QPainter painter(&writer);
    painter.setFont(QFont("DejaVu Sans", 7));
    for (int number = 0; number < document.pageCount(); ++number) {
        if (number > 0)
            writer.newPage();
        painter.drawText(page.bottomLeft() + QPointF(0, writer.resolution() / 5.0),
                         footer.arg(number + 1).arg(document.pageCount()));
        painter.translate(0, -number * page.height());
        document.drawContents(&painter, page.translated(0, number * page.height()));
        painter.resetTransform();
    }
}

} // namespace

std::vector<std::string> Conclusion(const Record& record) {
    std::vector<std::string> lines = {""};
    for (const Check& check : record.Checks)
        if (!check.Faults.empty())
            lines.push_back("Chapter " + std::to_string(static_cast<int>(check.Place)) + ", " +
                            check.Identifier + " " + check.Title + ": " + check.Faults.front());
    for (const auto& [requirement, checks] : Requirements(record))
        if (checks.empty())
            lines.push_back("Requirement " + requirement + " has no check.");
    lines.front() = std::string("Conclusion: ") + (lines.size() == 1 ? "PASSED, " : "FAILED, ") +
                    std::to_string(record.Checks.size()) + " checks" +
                    (record.Quick ? "; quick form, with fewer lists and smaller samples" : "");
    return lines;
}

QByteArray RecordPdf(const Record& record, const Run& run) {
    const QString title = "Validation record of Orvane Software " + QString::fromStdString(run.Version);
    QTextDocument document;
    document.setDefaultFont(QFont("DejaVu Sans", 9));
    document.setHtml(Filled(record, run, title));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(16, 15, 16, 12), QPageLayout::Millimeter);
    writer.setResolution(300);
    writer.setTitle(title);
    Print(document, writer, title + ", " + QString::fromStdString(run.Started) + ", page %1 of %2");
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
