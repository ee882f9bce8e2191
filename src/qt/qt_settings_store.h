// The user's settings in the place where the system keeps them.
#pragma once

#include "platform/settings_store.h"

namespace lorvane {

class QtSettingsStore final : public SettingsStore {
public:
    std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                           const std::string& fallback) const override;
    void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& value) override;
};

}  // namespace lorvane
