// Files in memory.
#pragma once

#include "fakes/faults.h"
#include "platform/files.h"

#include <map>
#include <vector>

namespace orvane::fakes {

/// A Write that fails takes the first half of its bytes.
struct MemoryFiles : Files, Faults {
    std::map<std::string, std::string> Contents; ///< by path
    std::vector<std::string> Log;                ///< "OpenForOutput path" and so on, Copy with its target
    int Open = 0;                                ///< files open now

    std::unique_ptr<WritableFile> OpenForOutput(const std::string& path) override {
        Note("OpenForOutput", path);
        Contents[path].clear();
        return std::make_unique<Output>(*this, Contents[path]);
    }
    std::unique_ptr<WritableFile> CreatePrivate(const std::string& path) override {
        Note("CreatePrivate", path);
        return std::make_unique<Output>(*this, Contents[path]);
    }
    std::unique_ptr<ReadableFile> OpenForInput(const std::string& path) override {
        return std::make_unique<Input>(*this, Existing("OpenForInput", path));
    }
    void Copy(const std::string& from, const std::string& to) override {
        Contents[to] = Existing("Copy", from);
    }
    void Delete(const std::string& path) override {
        Existing("Delete", path);
        Contents.erase(path);
    }
    bool Exists(const std::string& path) override { return Contents.contains(path); }

    struct Handle {
        explicit Handle(MemoryFiles& files) : Files(files) { ++Files.Open; }
        ~Handle() { --Files.Open; }
        MemoryFiles& Files;
    };
    struct Output : WritableFile, Handle {
        Output(MemoryFiles& files, std::string& content) : Handle(files), Content(content) {}
        void Write(std::string_view bytes) override {
            const bool fails = Files.Failing("Write");
            Content += bytes.substr(0, fails ? bytes.size() / 2 : bytes.size());
            if (fails)
                throw Failure("cannot Write", 28, "a fake");
        }
        void Close() override { Files.Try("Close"); }
        std::string& Content;
    };
    struct Input : ReadableFile, Handle {
        Input(MemoryFiles& files, std::string bytes) : Handle(files), Bytes(std::move(bytes)) {}
        std::size_t Read(std::span<char> buffer) override {
            Files.Try("Read");
            const std::size_t count = Bytes.copy(buffer.data(), buffer.size(), Next);
            Next += count;
            return count;
        }
        std::string Bytes;
        std::size_t Next = 0;
    };

    void Note(const std::string& call, const std::string& path) {
        Try(call);
        Log.push_back(call + " " + path);
    }
    std::string Existing(const std::string& call, const std::string& path) {
        Note(call, path);
        if (!Contents.contains(path))
            throw Failure("no file " + path, 2, "a fake");
        return Contents[path];
    }
};

} // namespace orvane::fakes
