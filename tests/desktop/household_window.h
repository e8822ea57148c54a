// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/kiv_command.h"
#include "help/manual.h"
#include "main_window.h"
#include "support/preferences_store.h"
#include "support/surroundings.h"
#include "wizards/first_time_wizard.h"

#include <QtCore/QTemporaryDir>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QPushButton>

/// Answers questions as a test says, and keeps what was asked.
class ScriptedQuestions final : public kiv::desktop::Questions {
public:
    QStringList files;                             ///< the next answers
    std::vector<std::optional<qsizetype>> choices; ///< the next answers
    QStringList asked;                             ///< what was asked or shown

    QString fileToOpen(QWidget *) override { return next(QStringLiteral("open")); }
    QString fileToMake(QWidget *, const QString &heading) override { return next(heading); }
    QString fileToExport(QWidget *, const QString &suffix) override { return next(suffix); }
    QString fileToImport(QWidget *) override { return next(QStringLiteral("import")); }
    std::optional<qsizetype> choose(QWidget *, const QString &question,
                                    const QStringList &answers) override
    {
        asked += question + QStringLiteral(" | ") + answers.join(QStringLiteral(" | "));
        if (choices.empty())
            return std::nullopt;
        const std::optional<qsizetype> answer = choices.front();
        choices.erase(choices.begin());
        return answer;
    }
    std::optional<Typed> passphrase(QWidget *, const QString &question) override
    {
        asked += question;
        if (passphrases.isEmpty())
            return std::nullopt;
        return Typed{passphrases.takeFirst(), isToKeep};
    }
    bool printer(QWidget *, QPrinter &printer) override
    {
        // As a printer that writes into a file.
        printer.setOutputFileName(next(QStringLiteral("print")));
        return !printer.outputFileName().isEmpty();
    }
    void show(QWidget *, const QString &heading, const QString &text) override
    {
        asked += heading + u'\n' + text;
    }
    QStringList passphrases; ///< the next answers
    bool isToKeep = false;   ///< whether the keyring is to keep them

private:
    QString next(const QString &heading)
    {
        asked += heading;
        return files.isEmpty() ? QString() : files.takeFirst();
    }
};

/// A keyring that a test can look into.
class TestKeyring final : public kiv::desktop::PassphraseStore {
public:
    std::optional<QString> kept(const QString &file) override
    {
        return all.contains(file) ? std::optional(all.value(file)) : std::nullopt;
    }
    void keep(const QString &file, const QString &passphrase) override
    {
        if (isClosed)
            throw kiv::workbench::Refusal(QStringLiteral("The keyring is closed."));
        all.insert(file, passphrase);
    }
    void forget(const QString &file) override { all.remove(file); }

    QMap<QString, QString> all;
    bool isClosed = false;
};

/// A window on a budget in a temporary folder, with a service that has no rates unless a
/// script says otherwise. One that never answers keeps a test waiting as it keeps the window's
/// event loop.
class HouseholdWindow {
public:
    explicit HouseholdWindow(ScriptedSender::Script script = ScriptedSender::json("{}"),
                             bool showsTerms = false)
        : m_settings(m_folder.filePath(QStringLiteral("window.ini"))),
          m_document(kiv::test::surroundings(m_folder.filePath(QStringLiteral("rates")),
                                             std::move(script))),
          m_window({m_document, m_settings, m_questions, m_keyring, showsTerms})
    {
        QApplication::setCursorFlashTime(0); // what is painted is not to depend on the time
    }

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] kiv::desktop::MainWindow &window() noexcept { return m_window; }
    [[nodiscard]] kiv::workbench::Document &document() noexcept { return m_document; }
    [[nodiscard]] kiv::workbench::Requests &requests() noexcept { return m_document.requests(); }
    [[nodiscard]] kiv::desktop::WindowSettings &settings() noexcept { return m_settings; }
    [[nodiscard]] ScriptedQuestions &questions() noexcept { return m_questions; }
    [[nodiscard]] TestKeyring &keyring() noexcept { return m_keyring; }

    [[nodiscard]] QStringList notices() { return m_window.desk().notices().texts(); }
    /// An account's number, as places have it.
    [[nodiscard]] QString number(const QString &account)
    {
        return kiv::accounting::presentationText(
            requests().accounts().find(account).code().number());
    }

    /// Opens the household at the end of February; see KivCommand::makeHousehold().
    void openHousehold()
    {
        const QString file = path(QStringLiteral("household.budget"));
        KivCommand(file).makeHousehold();
        QVERIFY(m_window.open(file));
    }
    /// Shows the window, as tests of keys need it.
    void show()
    {
        m_window.show();
        QApplication::setActiveWindow(&m_window);
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
    }
    /// Writes a file with these bytes.
    [[nodiscard]] QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The file cannot be written.");
        return file.fileName();
    }
    /// Begins to import a file with these bytes; into an account, if one is named.
    void beginImport(const QString &name, const QByteArray &bytes, const char *account = "Checking")
    {
        m_questions.files = {write(name, bytes)};
        if (*account)
            m_window.desk().importFile(
                requests().accounts().find(QLatin1String(account)).code().number());
        else
            trigger("import");
    }
    /// Shows each page and each part of it, and the steps of an import and of the first start.
    /// `look` gets what is shown, its first field, and its name.
    template <typename Look>
    void lookAtAll(Look &&look)
    {
        beginImport(QStringLiteral("march.csv"), "Date,Payee,Description,Amount\n"
                                                 "2026-02-28,Landlord,rent,-900.00\n"
                                                 "2026-03-02,Mill,salary,2500.00\n"
                                                 "2026-03-06,Corner kiosk,,-7.50\n");
        m_window.page()->findChild<QPushButton *>(QStringLiteral("useColumns"))->click();
        for (kiv::desktop::Page *page : m_window.pages()) {
            for (const QString &part : QStringList{QString()} + page->parts()) {
                const kiv::desktop::Place place{page->id(), part};
                m_window.goTo(place);
                QCoreApplication::processEvents();
                look(*page, *page->firstFocus(), place.text().replace(u'/', u' '));
            }
        }
        beginImport(QStringLiteral("old.journal"), "2026-03-01 Baker\n  Expenses:Bread  4 USD\n"
                                                   "  Assets:Checking\n");
        QCoreApplication::processEvents();
        look(*m_window.page(), *m_window.page()->firstFocus(), QStringLiteral("import journal"));
        trigger("wizard");
        auto *wizard = m_window.findChild<kiv::desktop::FirstTimeWizard *>();
        wizard->findChild<QComboBox *>(QStringLiteral("household"))->setCurrentIndex(2);
        for (const auto step : kiv::desktop::FirstTimeWizard::steps) {
            wizard->goTo(step);
            QCoreApplication::processEvents();
            look(*wizard, *wizard->firstFocus(),
                 QStringLiteral("wizard %1").arg(static_cast<int>(step) + 1));
        }
    }
    /// Has each kind of question asked, looks at its dialog, and gives up.
    template <typename Look>
    void lookAtDialogs(Look &&look)
    {
        kiv::desktop::DialogQuestions questions;
        const QString sentence = kiv::desktop::householdGuide().section(u'\n', 0, 0);
        int seen = 0;
        const auto meet = [&](const QString &name, const std::function<void()> &ask) {
            QTimer::singleShot(0, &m_window, [&] {
                auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
                QApplication::setActiveWindow(dialog);
                QVERIFY(dialog->focusWidget());
                look(*dialog, *dialog->focusWidget(), name);
                QVERIFY(dialog->screen()->size().expandedTo(dialog->size()) ==
                        dialog->screen()->size());
                ++seen;
                dialog->reject();
            });
            ask();
        };
        const QStringList answers(12, sentence);
        meet(QStringLiteral("choice"),
             [&] { QVERIFY(!questions.choose(&m_window, sentence, answers)); });
        meet(QStringLiteral("passphrase"),
             [&] { QVERIFY(!questions.passphrase(&m_window, sentence)); });
        meet(QStringLiteral("manual"),
             [&] { questions.show(&m_window, sentence, kiv::desktop::manualText({})); });
        QCOMPARE(seen, 3);
    }
    /// What gets the keys. A list of names that is open takes all of them; when it has
    /// closed, a desktop makes the window active again, and here nobody else does.
    QWidget *keyTarget()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            return popup;
        QApplication::setActiveWindow(&m_window);
        return QApplication::focusWidget();
    }
    /// Types letter by letter, each to what gets the keys then.
    void type(const QString &text)
    {
        for (const QChar letter : text) {
            QTest::keyClick(keyTarget(), letter.toLatin1());
            QCoreApplication::processEvents();
        }
    }
    /// Triggers an action as its keys do.
    void trigger(const QByteArray &action)
    {
        m_window.desk().actions().action(QString::fromLatin1(action))->trigger();
    }

private:
    PreferencesStore m_preferences;
    QTemporaryDir m_folder;
    kiv::desktop::WindowSettings m_settings;
    ScriptedQuestions m_questions;
    TestKeyring m_keyring;
    kiv::workbench::Document m_document;
    kiv::desktop::MainWindow m_window;
};
