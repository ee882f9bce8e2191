// The user's settings in the place where the system keeps them.
#include "qt/qt_settings_store.h"

#include <QSettings>
#include <QString>

namespace lorvane {

namespace {

QSettings settingsOf(const std::string& application) {
    const QString name = QString::fromStdString(application);
    return {QSettings::IniFormat, QSettings::UserScope, name, name};
}

QString pathOf(const std::string& section, const std::string& key) {
    return QString::fromStdString(section + "/" + key);
}

}  // namespace

std::string QtSettingsStore::GetSetting(const std::string& application, const std::string& section,
                                        const std::string& key, const std::string& fallback) const {
    const QVariant value = settingsOf(application).value(pathOf(section, key));
    return value.isValid() ? value.toString().toStdString() : fallback;
}

void QtSettingsStore::SaveSetting(const std::string& application, const std::string& section,
                                  const std::string& key, const std::string& value) {
    settingsOf(application).setValue(pathOf(section, key), QString::fromStdString(value));
}

}  // namespace lorvane
