// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "application/desktop_keyring.h"
#include "desktop/page_keys.h"

using test::message;
using test::part;
using test::press;

namespace {

const QString passphrase = u"four words of my own"_s;

void fill(HouseholdWindow &home, const QString &first, const QString &second)
{
    part<QLineEdit>(home, "passphrase").setText(first);
    part<QLineEdit>(home, "again").setText(second);
    part<QLineEdit>(home, "passphrase").setFocus();
    press(home, Qt::Key_Return);
}

bool isEncrypted(const QString &file)
{
    QFile content(file);
    return content.open(QIODevice::ReadOnly) && content.read(16) == "kivbudget locked";
}

} // namespace

/// Encrypting the budget, and opening it again.
class TestEncryptionPage : public QObject {
    Q_OBJECT

private slots:
    void aDesktopWithoutAKeyringKeepsNothing()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
        desktop::DesktopKeyring keyring;
        QVERIFY_THROWS_EXCEPTION(workbench::Refusal, keyring.keep(u"home"_s, passphrase));
        QCOMPARE(keyring.kept(u"home"_s), std::nullopt);
        keyring.forget(u"home"_s);
    }

    void aPassphraseIsTypedTwice()
    {
        SmallHousehold home;
        test::show(home, "encryption");
        const QString file = home.document().file();
        fill(home, passphrase, u"other words"_s);
        QVERIFY(message(home).contains(u"not the same"_s));
        QCOMPARE(part<QLineEdit>(home, "passphrase").text(), passphrase);
        press(home, Qt::Key_Escape);
        QVERIFY(part<QLineEdit>(home, "passphrase").text().isEmpty());
        fill(home, {}, {});
        QVERIFY(message(home).contains(u"at least one"_s));
        QVERIFY(!isEncrypted(file));
        QVERIFY(!part<QPushButton>(home, "decrypt").isEnabled());

        fill(home, passphrase, passphrase);
        QCOMPARE(home.notices(), QStringList());
        QVERIFY(isEncrypted(file));
        QCOMPARE(home.window().windowTitle(), u"home (saved, encrypted)"_s);
        QVERIFY(part<QLineEdit>(home, "passphrase").text().isEmpty());
        // It goes on: a step, undone, and what is written stays encrypted.
        home.document().perform({u"Added"_s, {}, {}}, [&] {
            home.addAccount("Food", accounting::AccountTypes::Expense);
        });
        home.trigger("undo");
        home.document().writeNow();
        QVERIFY(isEncrypted(file));
        home.settings().setPassphraseKept(file, true);
        part<QPushButton>(home, "decrypt").click();
        QVERIFY(!isEncrypted(file));
        QVERIFY(!home.settings().isPassphraseKept(file));
    }

    void anEncryptedBudgetAsksUntilItIsRight()
    {
        SmallHousehold home;
        test::show(home, "encryption");
        fill(home, passphrase, passphrase);
        const QString copy = home.path(u"copy.budget"_s);
        home.document().saveCopy(copy);
        QVERIFY(isEncrypted(copy));

        HouseholdWindow other;
        other.keyring().all = {{copy, passphrase}}; // it was never asked to keep this one
        QVERIFY(!other.window().open(copy));
        QCOMPARE(other.questions().asked.size(), 1);
        QVERIFY(other.document().file().isEmpty());
        other.keyring().all.clear();
        other.questions().passphrases = {u"wrong"_s, {}, passphrase};
        other.questions().isToKeep = true;
        QVERIFY(other.window().open(copy));
        QCOMPARE(other.questions().asked.size(), 4);
        QVERIFY(other.questions().asked.at(2).contains(u"not the passphrase"_s));
        QCOMPARE(other.keyring().all.value(copy), passphrase);
        QVERIFY(other.settings().isPassphraseKept(copy));
        QVERIFY(other.window().open(copy)); // now the keyring answers
        QCOMPARE(other.questions().asked.size(), 4);

        // A new passphrase that is not kept is not the keyring's any more.
        other.show();
        other.trigger("page encryption");
        fill(other, u"other words of mine"_s, u"other words of mine"_s);
        QVERIFY(other.keyring().all.isEmpty());
        other.keyring().isClosed = true;
        part<QCheckBox>(other, "keep").setChecked(true);
        fill(other, passphrase, passphrase);
        QVERIFY(other.keyring().all.isEmpty());
        other.keyring().isClosed = false;
        part<QCheckBox>(other, "keep").setChecked(true);
        fill(other, passphrase, passphrase);
        QCOMPARE(other.keyring().all.value(copy), passphrase);
        QVERIFY(isEncrypted(copy));
    }

    void aFormerVersionAsksForItsOwnPassphrase()
    {
        const QString others = u"words of somebody else"_s;
        SmallHousehold stranger;
        stranger.begin();
        stranger.document().perform({u"Added"_s, {}, {}}, [&] {
            stranger.addAccount("Food", accounting::AccountTypes::Expense);
        });
        stranger.document().encrypt(storage::Passphrase(others));
        SmallHousehold home;
        test::show(home, "encryption");
        fill(home, passphrase, passphrase);
        const QString versions = home.document().file() + u".versions/"_s;
        QVERIFY(QDir().mkpath(versions));
        QVERIFY(QFile::copy(stranger.document().file(),
                            versions + u"2026-01-01T12-00-00.000Z-9000.budget"_s));
        const auto accounts = [&home] {
            const workbench::AccountIndex index = home.requests().accounts();
            return index.accounts().size();
        };
        const std::size_t before = accounts();
        home.trigger("page history");
        QVERIFY(test::texts(home, 2, "steps").contains(u"another passphrase"_s));
        test::table(home, "steps").choose(u"version 9000"_s);
        const auto &ask = part<QPushButton>(home, "unlock");
        QTRY_VERIFY(ask.isVisible());
        QVERIFY(home.questions().asked.isEmpty()); // by nobody who only goes through the lines

        press(home, Qt::Key_B, Qt::AltModifier); // and gives up
        QCOMPARE(home.questions().asked.size(), 1);
        QVERIFY(message(home).isEmpty());
        home.questions().passphrases = {passphrase, others};
        press(home, Qt::Key_Y, Qt::AltModifier);
        QCOMPARE(home.questions().asked.size(), 3);
        QVERIFY(test::texts(home, 1, "changes").join(u' ').contains(u"Food"_s));
        QVERIFY(!ask.isVisible());
        QVERIFY(!test::texts(home, 2, "steps").contains(u"another passphrase"_s));
        press(home, Qt::Key_B, Qt::AltModifier);
        QCOMPARE(home.questions().asked.size(), 3);
        QCOMPARE(accounts(), before + 1);
    }
};

static const kiv::test::Suite<TestEncryptionPage> testEncryptionPageSuite;
#include "tst_encryption_page.moc"
