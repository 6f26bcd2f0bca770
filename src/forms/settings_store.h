// The per-user settings store of the platform (QSettings): the organisation is the application's
// name in the core ("Varnelt_ns"), the section a group ("Recent Files"), the key a key in it.
#pragma once

#include <QString>

#include "core/settings_store.h"

namespace vn::forms {

class PlatformSettingsStore : public SettingsStore {
 public:
  std::string Get(const std::string& app, const std::string& section, const std::string& key) override;
  void Set(const std::string& app, const std::string& section, const std::string& key,
           const std::string& value) override;
  std::vector<std::pair<std::string, std::string>> GetAll(const std::string& app,
                                                          const std::string& section) override;
};

}  // namespace vn::forms
