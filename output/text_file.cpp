#include "output/text_file.h"

#include "engine/text.h"
#include "platform/failure.h"

#include <array>
#include <span>
#include <utility>

namespace orvane {

namespace {

constexpr std::size_t ChunkSize = std::size_t{1} << 16U;

} // namespace

TextFileWriter::TextFileWriter(std::unique_ptr<WritableFile> file, const CodePage& page,
                               Unmappable unmappable)
    : file_(std::move(file)), page_(page), unmappable_(unmappable) {}

TextFileWriter::~TextFileWriter() {
    try {
        if (file_)
            Flush();
    } catch (...) {
        // The exception that prevented the call of Close is reported by the caller.
    }
}

void TextFileWriter::Write(std::string_view text) {
    buffer_ += page_.Encode(text, unmappable_);
    if (buffer_.size() >= ChunkSize)
        Flush();
}

void TextFileWriter::WriteLine(std::string_view text) {
    Write(text);
    Write(LineEnd);
}

void TextFileWriter::Close() {
    Flush();
    const std::unique_ptr<WritableFile> file = std::move(file_);
    file->Close();
}

void TextFileWriter::Flush() {
    // Emptied before the writing: after a failure a part of these bytes may be in the file, so they must not
    // be written again.
    const std::string bytes = std::exchange(buffer_, {});
    if (!bytes.empty())
        file_->Write(bytes);
}

TextFileReader::TextFileReader(std::unique_ptr<ReadableFile> file, const CodePage& page, std::string path,
                               LineRules rules)
    : file_(std::move(file)), page_(page), path_(std::move(path)), rules_(rules) {}

bool TextFileReader::AtEnd() {
    SkipLineFeed();
    return next_ == buffer_.size() && !Fill();
}

// Not done at the end of ReadLine: reading the LF could fail, and the line that is complete would be lost.
void TextFileReader::SkipLineFeed() {
    if (!behindReturn_ || (next_ == buffer_.size() && !Fill()))
        return;
    behindReturn_ = false;
    if (buffer_[next_] == '\n')
        ++next_;
}

std::string TextFileReader::ReadLine() {
    if (AtEnd())
        throw Failure("The file " + path_ + " ends too early" +
                          (lineFeedInLine_ ? ": its lines must end in CR LF, not in LF alone" : ""),
                      failure_number::EndOfFile, "reading a line");
    std::size_t end = LineEndFrom(next_);
    while (end == std::string::npos) {
        const std::size_t searched = buffer_.size() - next_;
        if (searched > rules_.LongestLine || !Fill())
            break;
        end = LineEndFrom(searched);
    }
    const bool ended = end != std::string::npos;
    const std::size_t length = (ended ? end : buffer_.size()) - next_;
    if (length > rules_.LongestLine)
        throw Failure("A line of the file " + path_ + " is longer than " +
                          std::to_string(rules_.LongestLine) + " characters",
                      failure_number::TooLarge, "reading a line");
    std::string line = page_.Decode(std::string_view(buffer_).substr(next_, length));
    lineFeedInLine_ = lineFeedInLine_ || line.find('\n') != std::string::npos;
    next_ += length + (ended ? 1 : 0);
    behindReturn_ = ended && buffer_[end] == '\r';
    return line;
}

std::size_t TextFileReader::LineEndFrom(std::size_t from) const {
    return rules_.LineFeedEndsLine ? buffer_.find_first_of(LineEnd, from) : buffer_.find('\r', from);
}

bool TextFileReader::Fill() {
    buffer_.erase(0, next_);
    next_ = 0;
    std::array<char, ChunkSize> chunk{};
    const std::size_t count = file_->Read(std::span<char>(chunk));
    read_ += count;
    if (read_ > rules_.LargestFile)
        throw Failure("The file " + path_ + " is larger than " + std::to_string(rules_.LargestFile) +
                          " bytes and is not read to its end",
                      failure_number::TooLarge, "reading a line");
    buffer_.append(chunk.data(), count);
    return count > 0;
}

} // namespace orvane
