#include "platform/text_file.h"

#include "platform/failure.h"
#include "platform/text.h"

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

TextFileReader::TextFileReader(ReadableFile& file, const CodePage& page, std::string path, LineRules rules)
    : page_(page), path_(std::move(path)), rules_(rules) {
    try {
        ReadAll(file);
    } catch (...) {
        failure_ = std::current_exception();
    }
}

void TextFileReader::ReadAll(ReadableFile& file) {
    std::array<char, ChunkSize> chunk{};
    while (const std::size_t count = file.Read(std::span<char>(chunk))) {
        if (bytes_.size() + count > rules_.LargestFile)
            throw Failure("The file " + path_ + " is larger than " + std::to_string(rules_.LargestFile) +
                              " bytes and is not read to its end",
                          failure_number::TooLarge, "reading a line");
        bytes_.append(chunk.data(), count);
    }
}

bool TextFileReader::AtEnd() const {
    if (next_ < bytes_.size())
        return false;
    if (failure_)
        std::rethrow_exception(failure_);
    return true;
}

std::string TextFileReader::ReadLine() {
    if (AtEnd())
        throw Failure("The file " + path_ + " ends too early" +
                          (lineFeedInLine_ ? ": its lines must end in CR LF, not in LF alone" : ""),
                      failure_number::EndOfFile, "reading a line");
    const std::size_t end =
        rules_.LineFeedEndsLine ? bytes_.find_first_of(LineEnd, next_) : bytes_.find('\r', next_);
    const bool ended = end != std::string::npos;
    const std::string_view line = std::string_view(bytes_).substr(next_, end - next_);
    if (line.size() > rules_.LongestLine)
        throw Failure("A line of the file " + path_ + " is longer than " +
                          std::to_string(rules_.LongestLine) + " characters",
                      failure_number::TooLarge, "reading a line");
    if (!ended && failure_)
        std::rethrow_exception(failure_);
    lineFeedInLine_ = lineFeedInLine_ || line.find('\n') != std::string_view::npos;
    next_ += line.size();
    if (ended)
        next_ += std::string_view(bytes_).substr(next_).starts_with(LineEnd) ? 2 : 1;
    return page_.Decode(line);
}

} // namespace orvane
