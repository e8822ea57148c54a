// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/month_names.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

namespace kiv::interchange::internal {

namespace {

constexpr qsizetype lettersMin = 3;

/// English, German, Spanish, French, Dutch, Italian, Portuguese, Polish, Hungarian and
/// Scandinavian names, as plainText() returns them.
const QStringList &namesOfMonths()
{
    static const QStringList names{
        QStringLiteral(
            "january januar janner enero janvier januari gennaio janeiro styczen stycznia"),
        QStringLiteral("february februar febrero fevrier februari febbraio fevereiro luty lutego"),
        QStringLiteral("march marz maerz mrz marzo mars maart mrt marco marzec marca marcius"),
        QStringLiteral("april abril avril aprile kwiecien kwietnia aprilis"),
        QStringLiteral("may mai mayo mei maggio maio maj maja majus"),
        QStringLiteral("june juni junio juin giugno junho czerwiec czerwca junius"),
        QStringLiteral("july juli julio juillet luglio julho lipiec lipca julius"),
        QStringLiteral("august agosto aout augustus augusti sierpien sierpnia augusztus"),
        QStringLiteral("september septiembre septembre settembre setembro wrzesien wrzesnia "
                       "szeptember"),
        QStringLiteral("october oktober octubre octobre ottobre outubro pazdziernik pazdziernika"),
        QStringLiteral("november noviembre novembre novembro listopad listopada"),
        QStringLiteral("december dezember diciembre decembre dicembre dezembro desember grudzien "
                       "grudnia")};
    return names;
}

/// All names and their beginnings, except those with which several months begin.
QHash<QString, int> monthsByName()
{
    QHash<QString, int> months;
    for (int month = 1; month <= 12; ++month) {
        for (const QString &name : namesOfMonths()[month - 1].split(u' ')) {
            for (qsizetype size = lettersMin; size <= name.size(); ++size) {
                const auto known = months.constFind(name.left(size));
                const bool isShared = known != months.constEnd() && *known != month;
                months[name.left(size)] = isShared ? -1 : month;
            }
        }
    }
    return months;
}

} // namespace

QString plainText(QStringView text)
{
    QString plain = text.toString().toLower().normalized(QString::NormalizationForm_D);
    plain.removeIf([](QChar letter) { return letter.isMark(); });
    for (const auto &[letter, written] :
         {std::pair(u'ł', "l"), {u'ø', "o"}, {u'ß', "ss"}, {u'æ', "ae"}})
        plain.replace(QChar(letter), QLatin1String(written));
    return plain;
}

int monthNamed(QStringView name)
{
    static const QHash<QString, int> months = monthsByName();
    return months.value(plainText(name), -1);
}

} // namespace kiv::interchange::internal
