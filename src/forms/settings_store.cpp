#include "forms/settings_store.h"

#include <QSettings>
#include <QStringList>
#include <algorithm>

namespace vn::forms {

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

std::string PlatformSettingsStore::Get(const std::string& app, const std::string& section,
                                       const std::string& key) {
  QSettings settings(Q(app), Q(app));
  settings.beginGroup(Q(section));
  return settings.value(Q(key)).toString().toStdString();
}

void PlatformSettingsStore::Set(const std::string& app, const std::string& section, const std::string& key,
                                const std::string& value) {
  QSettings settings(Q(app), Q(app));
  // QSettings writes its file (~/.config/Varnelt_ns/Varnelt_ns.conf) through a QSaveFile: a new
  // temporary file with a name of its own beside it, flushed to disk and renamed into place, under a
  // lock file. With atomic sync required it never falls back to writing the file in place, so a
  // failed write keeps the previous list whole. The list is not worth a message of its own: a failure
  // leaves the entry out, as an empty value would be.
  settings.setAtomicSyncRequired(true);
  settings.beginGroup(Q(section));
  settings.setValue(Q(key), Q(value));
  settings.sync();
}

std::vector<std::pair<std::string, std::string>> PlatformSettingsStore::GetAll(const std::string& app,
                                                                               const std::string& section) {
  QSettings settings(Q(app), Q(app));
  settings.beginGroup(Q(section));
  QStringList keys = settings.childKeys();
  // In the order of the keys: RecentFile1 before RecentFile2.
  std::sort(keys.begin(), keys.end());
  std::vector<std::pair<std::string, std::string>> all;
  for (const QString& k : keys) all.emplace_back(k.toStdString(), settings.value(k).toString().toStdString());
  return all;
}

}  // namespace vn::forms
