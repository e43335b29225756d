// Missing and unusable input: the messages, and that the typed text is kept.
#include "engine/generation.h"
#include "engine/numbers.h"
#include "options/option_validation.h"
#include "validation/figures.h"
#include "validation/known_answers_options.h"
#include "validation/known_answers_parts.h"

#include <utility>

namespace orvane::validation {
namespace {

void CompareLevels(Evidence& evidence) {
    for (const char* text : {"0.31", "0.35", "0", "", "abc", "0,05", "-0.1"}) {
        const OkResult result = PressOk(ValidSettings(2, 20), text);
        evidence.Compare("Significance level \"" + std::string(text) + "\"",
                         "Significance level must be greater than 0 ad less than 0.35", result.Messages,
                         ByHand);
        evidence.Demand(result.Focus == "txtLevel", "The significance level field does not have the focus.");
    }
    for (const char* text : {"0.05", ".05", "0.05abc", "0.3"})
        evidence.Compare(
            "Significance level \"" + std::string(text) + "\"", "accepted",
            [&] {
                const OkResult result = PressOk(ValidSettings(2, 20), text);
                return result.Sizes == "20" ? "accepted" : result.Messages;
            }(),
            ByHand);
}

void CompareNumbers(Evidence& evidence) {
    const std::pair<const char*, const char*> rows[] = {
        {"12", "12"},     {"1 2", "12"},    {"12abc", "12"}, {"abc", "0"},   {"", "0"},
        {"2.5", "2.5"},   {"-4", "-4"},     {".05", "0.05"}, {"0,05", "0"},  {"1E2", "100"},
        {"1D2", "100"},   {"1E+2", "100"},  {"&HA", "10"},   {"&O17", "15"}, {"&HFFFF", "65535"},
        {"1.2.3", "1.2"}, {"\t1\n2", "12"}, {"inf", "0"},    {"nan", "0"},
    };
    for (const auto& [text, value] : rows)
        evidence.Compare("Numeric value of the text \"" + std::string(text) + "\"", value,
                         Significant(NumericValue(text), 12), ByHand);
    evidence.Compare("2.5, 3.5 and -2.5 as whole numbers", "2, 4, -2",
                     Listed(std::vector<int>{ToInt16(2.5), ToInt16(3.5), ToInt16(-2.5)}),
                     "rounded to nearest, ties to even");
}

/// The sample size box, with a text in it.
class FilledInBox : public SampleSizeBox {
  public:
    explicit FilledInBox(std::string text) : text_(std::move(text)) {}
    [[nodiscard]] std::string Text() const override { return text_; }
    void SetFocus() override { HasFocus = true; }
    bool HasFocus = false;

  private:
    std::string text_;
};

void CompareSampleSizes(Evidence& evidence) {
    const std::pair<const char*, const char*> rows[] = {
        {"", "please specify the sample size"},
        {"0", "please specify the sample size"},
        {"-5", "please specify the sample size"},
        {"abc", "please specify the sample size"},
        {"32768", "the sample size can be at most 32767"},
        {"1E99", "the sample size can be at most 32767"},
    };
    for (const auto& [text, message] : rows) {
        KeptMessages messages;
        FilledInBox box(text);
        evidence.Demand(SampleSizeOf(text) <= 0, "A sample size was made of \"" + std::string(text) + "\".");
        RefuseSampleSize(box, messages);
        evidence.Compare("Sample size \"" + std::string(text) + "\"", message, messages.Take(), ByHand);
        evidence.Demand(box.HasFocus && box.Text() == text,
                        "The box does not have the focus, or its text has changed.");
    }
}

/// A refusal keeps the options as typed.
void CompareKeptText(Evidence& evidence) {
    ListSettings settings = ValidSettings(2, 20);
    settings.prBlockOption = RandomSizesOf;
    settings.prUnEqBlockSize = "6,,8";
    const std::string before = settings.prUnEqBlockSize;
    ListedValues source;
    MemoryDesktop desktop(source);
    FilledInOptions window;
    ListResults results;
    const MemoryNames names({"A", "B"});
    OptionValidation options(settings, results, names, window, desktop.All);
    options.cmdOK_Click();
    evidence.Demand(!desktop.Messages.Shown.empty(), "The list of sizes was not refused.");
    evidence.Compare("List of sizes after the refusal", before, settings.prUnEqBlockSize, ByHand);
}

} // namespace

void CheckKnownMessages(Record& record) {
    RunKnown(record, "MSG-1.1", "Sample sizes that cannot be used", CompareSampleSizes);
    RunKnown(record, "MSG-1.2", "Significance levels", CompareLevels);
    RunKnown(record, "MSG-1.3", "Numbers in texts", CompareNumbers);
    RunKnown(record, "MSG-1.4", "A refusal keeps what was typed", CompareKeptText);
}

} // namespace orvane::validation
