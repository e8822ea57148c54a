// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes as the settings file: each preference is read as something that can be
// used.
#include "navigation/configuration.h"
#include "navigation/user_preferences.h"
#include "numira/library.h"
#include "support/preferences_store.h"

#include <QtCore/QDateTime>

using namespace kiv;

namespace {

/// Settings with this content. They always stand under one name, since QSettings
/// keeps what it has read of each, which would be searched for leaks each time;
/// the day of the file tells it to read them again.
std::filesystem::path settingsOf(const QByteArray &content)
{
    static const PreferencesStore store;
    static const std::filesystem::path path = "preferences";
    static qint64 seconds = 0;
    QFile file(store.fileOf(path));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.flush() ||
        !file.setFileTime(QDateTime::fromSecsSinceEpoch(++seconds),
                          QFileDevice::FileModificationTime))
        qFatal("The settings file cannot be written.");
    return path;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const navigation::UserPreferences preferences(
        settingsOf(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size))));
    (void)preferences.surveyWindow();
    (void)preferences.hoursInWeek();
    (void)preferences.daysInWeek();
    (void)preferences.notifyDueWithin();
    (void)preferences.currenciesDisplayAs();
    (void)preferences.preferredCurrency();
    if (preferences.usableCurrencies().empty())
        std::abort();
    return 0;
}
