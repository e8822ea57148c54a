// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "application/start_options.h"
#include "desktop/accessibility.h"
#include "desktop/household_window.h"
#include "support/accounting.h"
#include "support/full_disk.h"
#include "wizards/first_time_wizard.h"

#include "navigation/user_preferences.h"
#include "storage/budget_file.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

namespace {

void addAccount(workbench::Document &document, const QString &name)
{
    document.perform({u"Added %1."_s.arg(name), u"adding %1"_s.arg(name), {}}, [&] {
        document.requests().change(
            workbench::accountOutcome, &navigation::Navigator::onAddedAct,
            accounting::Account(accounting::AccountTypes::Expense,
                                {document.requests().accounts().nextNumber(), name, std::nullopt},
                                kiv::test::usd("0"), false));
    });
}

bool has(workbench::Document &document, const QString &name)
{
    const workbench::AccountIndex index = document.requests().accounts();
    return std::ranges::any_of(index.accounts(), [&name](const accounting::Account &account) {
        return account.code().name() == name;
    });
}

} // namespace

/// New, open, save, close, undo and redo in the window, and what is said when they fail.
class TestFileSession : public QObject {
    Q_OBJECT

private slots:
    void theFileStandsBesideTheOptions()
    {
        const auto read = [](const QString &words) {
            return desktop::readStartOptions(u"kiv-desktop %1"_s.arg(words).split(u' '));
        };
        for (const QString &words : {u"-a home"_s, u"home -a"_s, u"-a -- home"_s}) {
            QCOMPARE(read(words).file, u"home"_s);
            QVERIFY(read(words).showsTerms());
        }
        QCOMPARE(read(u"-- -a"_s).file, u"-a"_s);
        QVERIFY(!read(u"-- -a"_s).showsTerms() && !read(u"-a -j home"_s).showsTerms());
    }

    void theFirstStepsAreLeftForGood()
    {
        HouseholdWindow desk;
        desk.show();
        auto *wizard = desk.window().findChild<desktop::FirstTimeWizard *>();
        QTRY_VERIFY(wizard->isVisible());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!wizard->isVisible());
        QVERIFY(navigation::UserPreferences(std::nullopt).doesExist());
    }

    void closingWritesWhatIsPending()
    {
        HouseholdWindow desk;
        begin(desk);
        addAccount(desk.document(), u"Food"_s);
        QVERIFY(desk.window().close());
        QVERIFY(desk.questions().asked.isEmpty());
        HouseholdWindow other;
        QVERIFY(!other.window().open(desk.path(u"home.budget"_s)) || other.document().isReadOnly());
    }

    void aDamagedFileLeavesTheOpenBudget()
    {
        HouseholdWindow desk;
        begin(desk);
        QFile damaged(desk.path(u"damaged.budget"_s));
        QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("no budget") > 0);
        damaged.close();
        QVERIFY(!desk.window().open(damaged.fileName()));
        QVERIFY(has(desk.document(), u"Rent"_s));
        QVERIFY(desk.notices().join(u' ').contains(u"damaged.budget"_s));
        QVERIFY(!desk.window().open(desk.path(u"none.budget"_s)));
        QVERIFY(desk.notices().join(u' ').contains(u"none.budget"_s));
        QVERIFY(desk.window().open(desk.path(u"home.budget"_s)));
        QCOMPARE(desk.notices(), QStringList());
    }

    void unsavedChangesAreGivenUpOrSavedElsewhere_data()
    {
        addRows<int>({{"saved elsewhere", 1}, {"given up", 2}});
    }
    void unsavedChangesAreGivenUpOrSavedElsewhere()
    {
        HouseholdWindow desk;
        QVERIFY(QDir().mkpath(desk.path(u"disk"_s)));
        begin(desk, u"disk/other"_s);
        begin(desk, u"disk/home"_s);
        desk.questions().files = {desk.path(u"spare"_s)};
        desk.trigger("saveCopy");
        addAccount(desk.document(), u"Food"_s);
        desk.trigger("save");
        QVERIFY(QDir().rename(desk.path(u"disk"_s), desk.path(u"gone"_s)));
        addAccount(desk.document(), u"Books"_s);
        desk.questions().choices = {rowOf<int>()};
        desk.questions().files = {desk.path(u"elsewhere"_s)};
        QVERIFY(desk.window().open(desk.path(u"spare"_s)));
        QVERIFY(!has(desk.document(), u"Food"_s));
        QCOMPARE(QFile::exists(desk.path(u"elsewhere.budget"_s)), rowOf<int>() == 1);
        QCOMPARE(desk.window().windowTitle(), u"spare (saved)"_s);
    }

    void aDamagedFileIsBroughtBack_data()
    {
        addRows<QString>({{"the newest", u"Bring the newest whole version back"_s},
                          {"one that is chosen", u"Look at former versions"_s}});
    }
    void aDamagedFileIsBroughtBack()
    {
        HouseholdWindow desk;
        begin(desk, u"lost"_s); // which keeps a former version
        begin(desk, u"home"_s);
        const QString file = desk.path(u"lost.budget"_s);
        QVERIFY(QFile::resize(file, QFileInfo(file).size() - 1));
        QVERIFY(!desk.window().open(file));
        QVERIFY(has(desk.document(), u"Rent"_s));
        auto *choice = buttonOfNotice(desk, rowOf<QString>());
        QVERIFY(choice);
        desk.questions().choices = {0};
        choice->click();
        QCOMPARE(desk.window().windowTitle(), u"lost (saved)"_s);
        QCOMPARE(desk.notices(), QStringList());
        QVERIFY(!has(desk.document(), u"Rent"_s)); // the version before it
    }

    void aFileThatIsOpenElsewhereIsForReading()
    {
        HouseholdWindow first;
        begin(first);
        HouseholdWindow second;
        QVERIFY(second.window().open(first.path(u"home.budget"_s)));
        QVERIFY(second.document().isReadOnly());
        QCOMPARE(second.window().windowTitle(), u"home (read only)"_s);
        QCOMPARE(desktop::ActionCollection::reason(
                     second.window().desk().actions().action(u"newEntry"_s)),
                 *second.document().whyReadOnly());
        QVERIFY_THROWS_EXCEPTION(workbench::Refusal, addAccount(second.document(), u"Food"_s));
        QVERIFY(!has(second.document(), u"Food"_s));
        begin(first, u"other"_s);
        buttonOfNotice(second, u"Try again"_s)->click();
        QCOMPARE(second.window().windowTitle(), u"home (saved)"_s);
    }

    void aFormerBudgetIsOpenedFromTheStart()
    {
        HouseholdWindow desk;
        begin(desk, u"home & garden"_s);
        HouseholdWindow other;
        desktop::MainWindow window(
            {other.document(), desk.settings(), other.questions(), other.keyring(), false});
        window.show();
        QApplication::setActiveWindow(&window);
        auto *button = qobject_cast<QPushButton *>(QApplication::focusWidget());
        QVERIFY(button);
        QCOMPARE(button->text(), u"home && garden"_s);
        QCOMPARE(button->accessibleDescription(), desk.path(u"home & garden.budget"_s));
        button->click();
        QTRY_COMPARE(window.windowTitle(), u"home & garden (read only)"_s);
    }

    /// The dialogs themselves, which a script stands for elsewhere.
    void filesAreChosenInDialogs()
    {
        const QTemporaryDir folder;
        desktop::DialogQuestions questions;
        const auto after = [&folder](int key, const std::function<QString()> &ask) {
            QTimer::singleShot(0, qApp, [&folder, key] {
                QWidget *dialog = QApplication::activeModalWidget();
                dialog->findChild<QLineEdit *>()->setText(folder.filePath(u"typed"_s));
                QTest::keyClick(dialog, Qt::Key(key));
            });
            return ask();
        };
        const auto make = [&] { return questions.fileToMake(nullptr, u"New"_s); };
        const auto sheet = [&] { return questions.fileToExport(nullptr, u"csv"_s); };
        for (int time = 0; time < 2; ++time) { // what is there already is refused elsewhere
            QCOMPARE(after(Qt::Key_Return, make), folder.filePath(u"typed.budget"_s));
            QVERIFY(QFile(folder.filePath(u"typed.budget"_s)).open(QFile::WriteOnly));
        }
        QCOMPARE(after(Qt::Key_Return, sheet), folder.filePath(u"typed.csv"_s));
        QCOMPARE(after(Qt::Key_Escape, make) + after(Qt::Key_Escape, sheet), QString());
    }

    void aFailedWriteIsToldAndMended_data()
    {
        QTest::addColumn<bool>("isFull");
        QTest::newRow("the folder is gone, like a disk that was taken out") << false;
        QTest::newRow("the disk is full") << true;
    }
    void aFailedWriteIsToldAndMended()
    {
        QFETCH(bool, isFull);
        HouseholdWindow desk;
        QVERIFY(QDir().mkpath(desk.path(u"disk"_s)));
        begin(desk, u"disk/home"_s);
        std::optional<FullDisk> full;
        if (isFull)
            full.emplace();
        else
            QVERIFY(QDir().rename(desk.path(u"disk"_s), desk.path(u"gone"_s)));
        addAccount(desk.document(), u"Food"_s);
        QTRY_COMPARE(desk.window().windowTitle(), u"home (not saved)"_s);
        QCOMPARE(desk.notices().size(), 1);
        addAccount(desk.document(), u"Books"_s); // work goes on
        QVERIFY(has(desk.document(), u"Food"_s) && has(desk.document(), u"Books"_s));

        // Closing asks, and giving up the question goes on.
        desk.questions().choices = {std::nullopt};
        QVERIFY(!desk.window().close());
        QCOMPARE(desk.questions().asked.size(), 1);
        // Whoever gives the changes up still has them until the other file is open.
        desk.questions().choices = {2};
        QVERIFY(!desk.window().open(desk.path(u"none"_s)));
        QVERIFY(has(desk.document(), u"Books"_s));
        QTRY_COMPARE(desk.window().windowTitle(), u"home (not saved)"_s);

        full.reset();
        QVERIFY(isFull || QDir().rename(desk.path(u"gone"_s), desk.path(u"disk"_s)));
        if (isFull)
            desk.trigger("save");
        else
            buttonOfNotice(desk, u"Try again"_s)->click();
        QCOMPARE(desk.window().windowTitle(), u"home (saved)"_s);
        QCOMPARE(desk.notices().size(), 1); // of the file that was not there
        QVERIFY(desk.notices().first().contains(u"none.budget"_s));
        QCOMPARE(savedAccounts(desk.path(u"disk/home.budget"_s)),
                 (QStringList{u"Rent"_s, u"Food"_s, u"Books"_s}));
    }

    void aFileThatAnotherChangedIsNotOverwritten()
    {
        HouseholdWindow desk;
        begin(desk);
        const QString file = desk.path(u"home.budget"_s);
        desk.questions().files = {desk.path(u"copy"_s)};
        desk.trigger("saveCopy");
        addAccount(desk.document(), u"Food"_s);
        desk.trigger("save");
        // A synchroniser brings an older state back.
        QVERIFY(QFile::remove(file) && QFile::copy(desk.path(u"copy.budget"_s), file));
        addAccount(desk.document(), u"Books"_s);
        desk.trigger("save");
        QCOMPARE(desk.window().windowTitle(), u"home (not saved)"_s);
        QCOMPARE(savedAccounts(file), QStringList{u"Rent"_s});

        auto *choice = buttonOfNotice(desk, u"Take the file as it is now"_s);
        QVERIFY(choice);
        choice->click();
        QVERIFY(!has(desk.document(), u"Books"_s) && has(desk.document(), u"Rent"_s));
        QCOMPARE(desk.window().windowTitle(), u"home (saved)"_s);
    }

    void aServiceThatNeverAnswersDisturbsNobody()
    {
        HouseholdWindow desk(ScriptedSender::silence());
        begin(desk);
        bool isWaiting = false;
        // This runs in the event loop of the request for rates, which comes after 100 ms.
        QTimer::singleShot(400, &desk.window(), [&] {
            isWaiting = true;
            addAccount(desk.document(), u"Food"_s);
            desk.trigger("undo");
            desk.trigger("redo");
            QVERIFY(has(desk.document(), u"Food"_s));
            QVERIFY(desk.window().close());
        });
        desk.window().show();
        QTRY_VERIFY(isWaiting);
        QCOMPARE(savedAccounts(desk.path(u"home.budget"_s)), (QStringList{u"Rent"_s, u"Food"_s}));
    }

    void allKeysAreListedAndFound_data()
    {
        const QString undo = u"Undo  –  Ctrl+Z  –  There is nothing to undo."_s;
        addRows<QString>({{"undo", undo},
                          {"ctrl+z", undo},
                          {"space TICK", u"In a survey: tick the row, and go down  –  Space"_s},
                          {"dark", u"Dark"_s},
                          {"ctrl+nothing", {}}});
    }
    void allKeysAreListedAndFound()
    {
        HouseholdWindow desk;
        desk.questions().files = {desk.path(u"home"_s)};
        desk.trigger("new");
        desk.show();
        QWidget *const before = QApplication::focusWidget();
        QTest::keyClick(before, Qt::Key_Question, Qt::ControlModifier);
        const auto *list = listOf(desk, u"keys"_s);
        QVERIFY(list && list->isVisible());
        QCOMPARE(nameless(desk.window()), QStringList());
        for (const QAction *one : desk.window().desk().actions().all())
            QVERIFY2(!list->findItems(one->iconText(), Qt::MatchStartsWith).isEmpty(),
                     qPrintable(one->iconText()));
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(QTest::currentDataTag()));
        QCOMPARE(list->currentItem() ? list->currentItem()->text() : QString(), rowOf<QString>());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!list->isVisible());
        QCOMPARE(QApplication::focusWidget(), before);
    }

    void noTwoActionsHaveTheSameKeys()
    {
        HouseholdWindow desk;
        QCOMPARE(desk.window().desk().actions().conflicts(), QStringList());
        desk.window().desk().actions().add(u"planted"_s, desktop::ActionCollection::Group::Help,
                                           u"Planted"_s, QKeySequence::Save, [] {});
        QCOMPARE(desk.window().desk().actions().conflicts(), QStringList{u"Ctrl+S"_s});
    }

private:
    static void begin(HouseholdWindow &desk, const QString &name = u"home"_s)
    {
        desk.questions().files = {desk.path(name)};
        desk.trigger("new");
        addAccount(desk.document(), u"Rent"_s);
        desk.trigger("save");
        desk.questions().asked.clear();
    }
    /// The names of the expense accounts in the file.
    static QStringList savedAccounts(const QString &file)
    {
        storage::BudgetFile saved;
        saved.setFilePathName(file);
        saved.setReading(true);
        QStringList names;
        for (const accounting::Account &account : saved.load().generalLedger.accounts()) {
            if (account.type() == accounting::AccountTypes::Expense)
                names += account.code().name();
        }
        return names;
    }
    static QPushButton *buttonOfNotice(HouseholdWindow &desk, const QString &text)
    {
        for (auto *button : desk.window().desk().notices().findChildren<QPushButton *>()) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    static QListWidget *listOf(HouseholdWindow &desk, const QString &palette)
    {
        return desk.window().findChild<QFrame *>(palette)->findChild<QListWidget *>();
    }
};

static const kiv::test::Suite<TestFileSession> testFileSessionSuite;

#include "tst_file_session.moc"
