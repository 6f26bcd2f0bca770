// The per-user settings store: application, section, key -> text. The desktop program puts it in the
// platform's store; the core and the tests use the one in memory.
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace vn {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  // An absent key reads as the empty text.
  virtual std::string Get(const std::string& app, const std::string& section, const std::string& key) = 0;
  virtual void Set(const std::string& app, const std::string& section, const std::string& key,
                   const std::string& value) = 0;
  // All keys of a section with their values, in the order of the keys.
  virtual std::vector<std::pair<std::string, std::string>> GetAll(const std::string& app,
                                                                  const std::string& section) = 0;
};

class MemorySettingsStore : public SettingsStore {
 public:
  std::string Get(const std::string& app, const std::string& section, const std::string& key) override {
    auto it = values_.find({app, section, key});
    return it == values_.end() ? std::string() : it->second;
  }
  void Set(const std::string& app, const std::string& section, const std::string& key,
           const std::string& value) override {
    values_[{app, section, key}] = value;
  }
  std::vector<std::pair<std::string, std::string>> GetAll(const std::string& app,
                                                          const std::string& section) override {
    std::vector<std::pair<std::string, std::string>> all;
    for (const auto& [k, v] : values_)
      if (k.app == app && k.section == section) all.emplace_back(k.key, v);
    return all;
  }

 private:
  struct Key {
    std::string app, section, key;
    bool operator<(const Key& o) const {
      return std::tie(app, section, key) < std::tie(o.app, o.section, o.key);
    }
  };
  std::map<Key, std::string> values_;
};

}  // namespace vn
