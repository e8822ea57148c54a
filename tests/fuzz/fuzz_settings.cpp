// SPDX-License-Identifier: GPL-3.0-or-later
//
// Bytes as the settings file: each preference is read as something that can be
// used.
#include "navigation/configuration.h"
#include "navigation/user_preferences.h"
#include "numira/library.h"
#include "support/preferences_store.h"

using namespace kiv;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static PreferencesStore store;
    const auto path =
        store.withContent(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    {
        const navigation::UserPreferences preferences(path);
        (void)preferences.surveyWindow();
        (void)preferences.hoursInWeek();
        (void)preferences.daysInWeek();
        (void)preferences.notifyDueWithin();
        (void)preferences.currenciesDisplayAs();
        (void)preferences.preferredCurrency();
        if (preferences.usableCurrencies().empty())
            std::abort();
    }
    QFile::remove(store.fileOf(path));
    return 0;
}
