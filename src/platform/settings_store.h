// The per-user store of settings. It never fails: what cannot be read has its fallback, and what cannot be
// written is forgotten at the end.
#pragma once

#include <map>
#include <string>
#include <tuple>

namespace lorvane {

class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    virtual std::string GetSetting(const std::string& application, const std::string& section,
                                   const std::string& key, const std::string& fallback) const = 0;
    virtual void SaveSetting(const std::string& application, const std::string& section,
                             const std::string& key, const std::string& value) = 0;
};

/// Settings that last as long as the program: a script must not change what a person finds in the window.
class MemorySettings final : public SettingsStore {
public:
    std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                           const std::string& fallback) const override {
        const auto found = values_.find({application, section, key});
        return found == values_.end() ? fallback : found->second;
    }
    void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& value) override {
        values_.insert_or_assign({application, section, key}, value);
    }

private:
    std::map<std::tuple<std::string, std::string, std::string>, std::string> values_;
};

}  // namespace lorvane
