// Files kept in memory.
#pragma once

#include <functional>
#include <map>

#include "platform/file_store.h"

namespace lorvane {

class MemoryFileStore final : public FileStore {
public:
    std::map<std::string, std::string> files;
    bool full = false;
    std::string protectedPath;
    std::function<void()> onUse = [] {};  ///< before a file is read or replaced

    std::string read(const std::string& path, std::size_t largest) const override {
        onUse();
        const auto found = files.find(path);
        if (found == files.end() || found->second.size() > largest)
            throw FileProblem("The file \"" + path + "\" cannot be read.");
        return found->second;
    }

    bool exists(const std::string& path) const override { return files.contains(path); }

    void replace(const std::string& path, std::string_view content) override {
        onUse();
        if (path == protectedPath)
            throw ProtectedFile("The file \"" + path + "\" is write-protected.");
        if (full)
            throw FileProblem("The file \"" + path + "\" cannot be written.");
        files[path] = content;
    }
};

}  // namespace lorvane
