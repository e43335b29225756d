#include "lists/cell_walk.h"
#include "lists/glb_util.h"
#include "platform/text_file.h"

#include <utility>

namespace orvane {

namespace {

std::string TableHead(const ListSettings& settings) {
    const std::string border = settings.TableBorder ? "1" : "0";
    return "<table border='" + border + "' cellspacing='" + std::to_string(settings.CellSpacing) +
           "' width='100%' nowrap=1><tr>";
}

class HtmlCells : public CellWriter {
  public:
    HtmlCells(TextFileWriter& file, std::string tableHead) : file_(file), tableHead_(std::move(tableHead)) {}

    void PageHead() {
        file_.WriteLine("<html><head><title>Random Sequence</title></head><body style='font-family:Arial'>");
        file_.WriteLine(tableHead_);
    }

    void RowBreak() override { file_.WriteLine("</tr><tr>"); }

    void FilledCell(std::int16_t /*column*/, const std::string& code, const std::string& groupName) override {
        // Names stand as they were typed, so that a name such as A<sub>1</sub> is shown as its user means it.
        file_.WriteLine("<td>" + code + ": <b>" + groupName + "</b></td>");
    }

    void BlankCell(std::int16_t /*column*/) override { file_.WriteLine("<td>&nbsp;</td>"); }

    void BlockEnd(bool lastBlock) override {
        file_.WriteLine("</tr></table>");
        file_.WriteLine("<hr>");
        file_.WriteLine(lastBlock ? "</body></html>" : tableHead_);
    }

  private:
    TextFileWriter& file_;
    std::string tableHead_;
};

} // namespace

void GenerateHtm(const ReportContext& context, const std::string& S) {
    const Platform& desktop = context.Desktop;
    const std::string tableHead = TableHead(context.Settings);
    TextFileWriter file(desktop.FileSystem.OpenForOutput(S), desktop.Page, Unmappable::NumericReference);
    HtmlCells cells(file, tableHead);
    cells.PageHead();
    WalkCells(context, cells);
    file.Close();
    OpenInBrowser(S, context.MainWindow, desktop.Shell, desktop.Messages);
}

} // namespace orvane
