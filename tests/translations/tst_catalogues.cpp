// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "catalogue.h"

#include "navigation/currency_display.h"
#include "navigation/internal/budget_item_generator.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <set>

using kiv::test::faults;
using kiv::test::Message;
using kiv::test::readCatalogue;
using namespace Qt::StringLiterals;

namespace {

QString catalogue(const char *language)
{
    return QStringLiteral(KIV_TRANSLATIONS "/kiv_%1.ts").arg(QLatin1String(language));
}

std::set<QString> keys(const std::vector<Message> &messages)
{
    std::set<QString> all;
    for (const Message &message : messages)
        all.insert(message.key());
    return all;
}

} // namespace

class tst_Catalogues : public QObject {
    Q_OBJECT

private slots:
    void lostPartsAreFound_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QString &source, const QStringList &texts,
                            const QStringList &expected) {
            QTest::newRow(name) << source << texts << expected;
        };
        const QString placeholders = u"placeholders"_s;
        row("all is there", u"%1 % of %2."_s, {u"%2: %1 %."_s}, {});
        row("one for another", u"%1 and %2"_s, {u"%1 und %1"_s}, {placeholders});
        row("a lost sign", u"%1 %"_s, {u"%1"_s}, {u"per cent signs"_s});
        row("a count in words", u"%n days"_s, {u"ein Tag"_s, u"%n Tage"_s}, {});
        row("no count for many", u"%n days"_s, {u"%n Tag"_s, u"Tage"_s},
            {placeholders, u"per cent signs"_s});
        row("a translated option", u"use --file"_s, {u"mit --datei"_s}, {u"options"_s});
        row("a lost blank", u" or "_s, {u"oder "_s}, {u"blanks and breaks around it"_s});
        row("a lost break", u"a\nb"_s, {u"a b"_s}, {u"ends of lines"_s});
        row("a lost point", u"Gone."_s, {u"Weg"_s}, {u"its last mark"_s});
        row("a mnemonic", u"File"_s, {u"&Datei"_s}, {u"mnemonics"_s});
        row("an empty text", u"File"_s, {QString()}, {u"nothing"_s});
    }

    void lostPartsAreFound()
    {
        QFETCH(const QString, source);
        QFETCH(const QStringList, texts);
        QFETCH(const QStringList, expected);
        const bool hasPlurals = source.contains(u"%n"_s);
        QCOMPARE(faults({{}, source, {}, {}, hasPlurals, texts}), expected);
    }

    void everyMessageIsTranslatedWhole_data()
    {
        QTest::addColumn<bool>("isPluralOnly");
        QTest::newRow("de") << false;
        QTest::newRow("es") << false;
        QTest::newRow("en") << true;
    }

    /// The catalogues are what lupdate would make of the sources as they are now.
    void everyMessageIsTranslatedWhole()
    {
        QFETCH(const bool, isPluralOnly);
        const QTemporaryDir folder;
        const QString fresh = folder.filePath(u"fresh.ts"_s);
        QStringList words = QStringLiteral(KIV_LUPDATE_WORDS).split(u'|');
        if (isPluralOnly)
            words += u"-pluralonly"_s;
        const QStringList rest{u"-target-language"_s, QLatin1String(QTest::currentDataTag()),
                               u"-ts"_s, fresh};
        QProcess lupdate;
        lupdate.start(QStringLiteral(KIV_LUPDATE), words + rest);
        QVERIFY2(lupdate.waitForFinished(120'000) && lupdate.exitCode() == 0,
                 lupdate.readAllStandardError().constData());

        const std::vector<Message> messages = readCatalogue(catalogue(QTest::currentDataTag()));
        const std::set<QString> have = keys(messages);
        const std::set<QString> want = keys(readCatalogue(fresh));
        QVERIFY(!want.empty());
        QStringList complaints;
        for (const QString &key : want) {
            if (!have.contains(key))
                complaints += u"missing: "_s + key;
        }
        for (const QString &key : have) {
            if (!want.contains(key))
                complaints += u"gone: "_s + key;
        }
        for (const Message &message : messages) {
            const QStringList wrong = faults(message);
            if (!wrong.isEmpty())
                complaints += message.source + u": "_s + wrong.join(u", "_s);
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(u"build update-translations, then see to\n"_s +
                                                  complaints.join(u'\n')));
    }

    void starterBudgetsKeepTheirItems_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"de", "es"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }

    /// Two items of one kind with one name would be refused.
    void starterBudgetsKeepTheirItems()
    {
        QFETCH(const QString, language);
        // As a front end does it.
        QTranslator translator;
        QVERIFY(translator.load(QLocale(language), u"kiv"_s, u"_"_s, u":/kiv/translations"_s));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        using kiv::navigation::BudgetWizardTemplates;
        for (const auto household :
             {BudgetWizardTemplates::Teenager, BudgetWizardTemplates::AdultSingle,
              BudgetWizardTemplates::AdultMarriedSingleIncome,
              BudgetWizardTemplates::AdultMarriedDoubleIncome}) {
            std::set<std::pair<kiv::budgeting::BudgetItemTypes, QString>> names;
            std::size_t count = 0;
            const auto generator = kiv::navigation::internal::makeBudgetItemGenerator(
                household, numira::toCurrency("EUR"));
            for (const auto &[item, isTied] : generator->generate()) {
                names.emplace(kiv::budgeting::toBudgetItemTypes(*item), item->source().name());
                ++count;
            }
            QVERIFY(count > 20);
            QCOMPARE(names.size(), count);
        }
        for (const auto option : {kiv::navigation::CurrencyDisplayOptions::IsoCode,
                                  kiv::navigation::CurrencyDisplayOptions::Symbol,
                                  kiv::navigation::CurrencyDisplayOptions::SymbolAndCode}) {
            QCOMPARE(kiv::navigation::toCurrencyDisplayOptions(presentationText(option)), option);
        }
    }
};

static const kiv::test::Suite<tst_Catalogues> suite;
#include "tst_catalogues.moc"
