// Files in memory that can be told to fail.
#pragma once

#include "platform/failure.h"
#include "platform/files.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace orvane::fakes {

class MemoryFiles : public Files {
  public:
    std::map<std::string, std::string> Contents; ///< by path
    std::set<std::string> Closed;                ///< paths that cannot be opened, created or deleted
    /// Bytes that all writes together may write; the write that passes it writes what fits and fails.
    std::size_t Capacity = std::numeric_limits<std::size_t>::max();
    bool CloseFails = false;
    /// Bytes that all reads together may read; the read that would pass it gives what is left, the next
    /// fails.
    std::size_t ReadableBytes = std::numeric_limits<std::size_t>::max();
    bool CopyFails = false;
    std::vector<std::string>
        Log;      ///< "create path", "replace path", "read path", "delete path", "copy from to"
    int Open = 0; ///< files open now

    static constexpr std::int32_t OpenFailed = 13;
    static constexpr std::int32_t NoSuchFile = 2;
    static constexpr std::int32_t DiskFull = 28;
    static constexpr std::int32_t IOError = 5;

    std::unique_ptr<OutputFile> OpenForOutput(const std::string& path) override {
        RefuseClosed(path);
        Log.push_back("replace " + path);
        Contents[path].clear();
        return std::make_unique<Output>(*this, path);
    }
    std::unique_ptr<OutputFile> CreatePrivate(const std::string& path) override {
        RefuseClosed(path);
        if (Contents.contains(path))
            throw Failure("cannot create " + path, OpenFailed, "MemoryFiles");
        Log.push_back("create " + path);
        Contents[path].clear();
        return std::make_unique<Output>(*this, path);
    }
    std::unique_ptr<InputFile> OpenForInput(const std::string& path) override {
        RefuseClosed(path);
        RequireFile(path);
        Log.push_back("read " + path);
        return std::make_unique<Input>(*this, Contents[path]);
    }
    void Copy(const std::string& from, const std::string& to) override {
        RequireFile(from);
        RefuseClosed(to);
        if (CopyFails)
            throw Failure("cannot copy " + from, IOError, "MemoryFiles");
        Log.push_back("copy " + from + " " + to);
        Contents[to] = Contents[from];
    }
    void Delete(const std::string& path) override {
        RefuseClosed(path);
        RequireFile(path);
        Log.push_back("delete " + path);
        Contents.erase(path);
    }
    bool Exists(const std::string& path) override { return Contents.contains(path); }

  private:
    class Output : public OutputFile {
      public:
        Output(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) {
            ++files_.Open;
        }
        Output(const Output&) = delete;
        Output& operator=(const Output&) = delete;
        ~Output() override {
            if (open_)
                --files_.Open;
        }
        void Write(std::string_view bytes) override {
            const std::size_t fits = std::min(bytes.size(), files_.Capacity);
            files_.Contents[path_].append(bytes.substr(0, fits));
            files_.Capacity -= fits;
            if (fits < bytes.size())
                throw Failure("cannot write " + path_, DiskFull, "MemoryFiles");
        }
        void Close() override {
            open_ = false;
            --files_.Open;
            if (files_.CloseFails)
                throw Failure("cannot close " + path_, IOError, "MemoryFiles");
        }

      private:
        MemoryFiles& files_;
        std::string path_;
        bool open_ = true;
    };

    class Input : public InputFile {
      public:
        Input(MemoryFiles& files, std::string bytes) : files_(files), bytes_(std::move(bytes)) {
            ++files_.Open;
        }
        Input(const Input&) = delete;
        Input& operator=(const Input&) = delete;
        ~Input() override { --files_.Open; }
        std::size_t Read(std::span<char> buffer) override {
            if (files_.ReadableBytes == 0)
                throw Failure("cannot read", IOError, "MemoryFiles");
            const std::size_t count = std::min({buffer.size(), bytes_.size() - next_, files_.ReadableBytes});
            files_.ReadableBytes -= count;
            std::copy_n(bytes_.data() + next_, count, buffer.data());
            next_ += count;
            return count;
        }

      private:
        MemoryFiles& files_;
        std::string bytes_;
        std::size_t next_ = 0;
    };

    void RefuseClosed(const std::string& path) const {
        if (Closed.contains(path))
            throw Failure("cannot open " + path, OpenFailed, "MemoryFiles");
    }
    void RequireFile(const std::string& path) const {
        if (!Contents.contains(path))
            throw Failure("no file " + path, NoSuchFile, "MemoryFiles");
    }
};

} // namespace orvane::fakes
