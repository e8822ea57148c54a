// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/user_locale.h"

#include "foundation/local_dates.h"
#include "numira/local_text.h"
#include "numira/locale.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>

namespace kiv::workbench {
namespace {

QString localeOf(const char *category)
{
    for (const char *variable : {"LC_ALL", category, "LANG"}) {
        QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return name;
    }
    return {};
}

/// "de_AT" from "de_AT.UTF-8@euro".
QString withoutEncoding(const QString &locale)
{
    return locale.section(u'.', 0, 0).section(u'@', 0, 0);
}

bool isPlain(const QString &locale)
{
    const QString name = withoutEncoding(locale);
    return name.isEmpty() || name == u"C" || name == u"POSIX";
}

/// Installs a translation, and returns whether it exists.
bool install(QCoreApplication &application, const QString &file, const QString &folder)
{
    auto *translator = new QTranslator(&application);
    if (translator->load(file, folder))
        return QCoreApplication::installTranslator(translator);
    delete translator;
    return false;
}

/// Installs the translations of a locale, and returns whether they exist.
bool speak(QCoreApplication &application, const QString &locale)
{
    const QString name = withoutEncoding(locale);
    if (!install(application, QStringLiteral("kiv_") + name, QStringLiteral(":/kiv/translations")))
        return false;
    // The messages of Qt, if their translations are installed.
    install(application, QStringLiteral("qtbase_") + name,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return true;
}

} // namespace

void speakAsUser(QCoreApplication &application)
{
    foundation::setDateLocale(localeOf("LC_TIME").toStdString());
    writeNumbersAsUser();
    speak(application, QStringLiteral("en"));
    const QString messages = localeOf("LC_MESSAGES");
    if (isPlain(messages))
        return;
    const QStringList preferred = qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts);
    for (const QString &language : preferred + QStringList(messages)) {
        if (isPlain(language) || speak(application, language))
            return;
    }
}

bool hasNumberLocale()
{
    static const bool hasLocale = !isPlain(localeOf("LC_NUMERIC"));
    return hasLocale;
}

void writeNumbersAsUser()
{
    // Without a locale, Qt would use LANGUAGE, which is for messages only.
    numira::setLocale(hasNumberLocale() ? localeOf("LC_NUMERIC").toStdString() : "en_US",
                      numira::ShouldAllowFallback::Yes);
}

QString plainNumber(const QString &text)
{
    if (!hasNumberLocale())
        return text;
    const auto plain = numira::fromLocalText(text.toStdString());
    return plain ? QString::fromStdString(*plain) : text;
}

QString momentText(const QDateTime &moment)
{
    const QDateTime local = moment.toLocalTime();
    return foundation::localText(local.date()) + local.time().toString(QStringLiteral(" HH:mm"));
}

} // namespace kiv::workbench
