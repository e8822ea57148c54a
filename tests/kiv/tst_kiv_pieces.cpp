// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "command_line/help_format.h"
#include "command_line/manual.h"
#include "commands/commands.h"
#include "messages/errors.h"
#include "output/json.h"
#include "output/table.h"
#include "output/terminal.h"
#include "parsing/words.h"
#include "program/program.h"

#include "workbench/entry/user_locale.h"

#include <QtCore/QJsonDocument>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

/// A text, the columns that it has, and what is shown there.
using Cut = std::tuple<QString, int, QString>;

/// How the help begins, and how noon of a day is written.
using Language = std::pair<QString, QString>;

/// The pieces of the command that have more cases than are worth a process
/// each.
class TestKivPieces : public QObject {
    Q_OBJECT

private slots:
    void wordsAreSplitAsAShellDoes_data()
    {
        addRows<std::vector<std::string>>({{"", {}},
                                           {"  a\tb  ", {"a", "b"}},
                                           {"'a b' \"c d\"", {"a b", "c d"}},
                                           {"a'b c'd", {"ab cd"}},
                                           {"'' \"\"", {"", ""}},
                                           {"a\\ b \"\\\"\" '\\'", {"a b", "\"", "\\"}},
                                           {"a # b", {"a"}},
                                           {"a#b", {"a#b"}},
                                           {"a\\", {"a\\"}}, // nothing is left to be escaped
                                           {"a b\r", {"a", "b"}}});
    }
    void wordsAreSplitAsAShellDoes()
    {
        const auto words = rowOf<std::vector<std::string>>();
        QVERIFY(app::splitWords(QTest::currentDataTag()) == words);
        for (const std::string &word : words)
            QVERIFY(app::splitWords(app::quotedWord(word)) == std::vector{word});
    }
    void anOpenQuoteIsRefused()
    {
        QVERIFY_THROWS_EXCEPTION(app::UsageError, (void)app::splitWords("a 'b"));
    }

    void textIsCutToColumns_data()
    {
        addRows<Cut>({{"fits", {u"abcd"_s, 4, u"abcd"_s}},
                      {"too long", {u"abcde"_s, 4, u"abc…"_s}},
                      {"wide", {u"食費食費"_s, 6, u"食費…"_s}},
                      {"combining", {u"e\u0301e\u0301"_s, 2, u"e\u0301e\u0301"_s}},
                      {"without width", {u"a\u200db"_s, 2, u"a\u200db"_s}},
                      {"full width", {u"ＡＢ"_s, 3, u"Ａ…"_s}},
                      {"enclosing", {u"5\u20dd6"_s, 2, u"5\u20dd6"_s}}});
    }
    void textIsCutToColumns()
    {
        const auto [text, width, shown] = rowOf<Cut>();
        QCOMPARE(app::elided(text, width), shown);
        QVERIFY(app::displayWidth(app::elided(text, width)) <= width);
    }

    void oneEndlessNameWidensNoOtherLine()
    {
        const QString endless(1'000'000, u'x');
        const QString table =
            tableText({}, {{u"Rent"_s}, {u"1"_s}, {endless}, {u"2"_s}}, 2, app::Terminal());
        QVERIFY(table.indexOf(u'\n') < 300);
        QVERIFY(table.endsWith(endless + u"  2\n"_s));
    }

    void theTerminalSaysHowWideItIsAndWhetherItHasColours()
    {
        for (const auto &[columns, itsOwn, width] :
             {std::tuple("100", 40, 100), {"", 40, 40}, {"-1", 40, 40}, {"many", 0, 80}}) {
            qputenv("COLUMNS", columns);
            QCOMPARE(terminal(itsOwn).width(), width);
        }
        qputenv("TERM", "xterm");
        QCOMPARE(terminal(40).red(u"x"_s), u"\x1b[31mx\x1b[0m"_s);
        qputenv("NO_COLOR", "1");
        QCOMPARE(terminal(40).red(u"x"_s), u"x"_s);
        qunsetenv("NO_COLOR");
        qputenv("TERM", "dumb");
        QCOMPARE(terminal(40).red(u"x"_s), u"x"_s);
    }

    void jsonIsLaidOutAsQtDoes()
    {
        const QJsonObject value{
            {u"a \"\\\b\f\n\r\t\u0001 é 食 😀"_s, QJsonArray{}},
            {u"b"_s, QJsonArray{0.1, 1e300, -5, qint64{9007199254740993}, true}},
            {u"c"_s, QJsonObject{{u"d"_s, QJsonObject()}, {u"e"_s, QJsonValue()}}}};
        QByteArray text;
        app::JsonText json(app::JsonText::Layout::Indented,
                           [&text](const QByteArray &block) { text += block; });
        json.add(value, u"bb"_s, QJsonArray{value, value}).finish();
        QJsonObject whole = value;
        whole.insert(u"bb"_s, QJsonArray{value, value});
        QCOMPARE(text, QJsonDocument(whole).toJson());
    }

    /// The widest of what is no number is, and none to less than can be read.
    void tablesAreCutToTheTerminal()
    {
        qputenv("TERM", "dumb");
        qunsetenv("COLUMNS");
        for (const auto &[columns, cut] :
             {std::pair(29, "Name      Longest        Much\nChecking  A description  1.00\n"),
              {26, "Name      Longest     Much\nChecking  A descrip…  1.00\n"},
              {10, "Name  Lon…  Much\nChe…  A d…  1.00\n"}}) {
            QCOMPARE(tableText({u"Name"_s, u"Longest"_s, u"Much"_s},
                               {{u"Checking"_s}, {u"A description"_s}, {u"1.00"_s, true}}, 3,
                               terminal(columns)),
                     QString::fromUtf8(cut));
        }
    }

    void theManualEscapesWhatTheFormatterWouldTakeAsRequests()
    {
        CLI::App odd("'tis odd", "odd");
        odd.add_option("WORD", ".so it is")->expected(1, 9);
        odd.add_flag("-f,--flag")->description("A \\ flag")->required();
        QCOMPARE(app::manualOfCommands(odd),
                 ".SS odd\n\\fBodd\\fR [\\fIWORD\\fR …] \\fB\\-f\\fR, \\fB\\-\\-flag\\fR\n.PP\n"
                 "\\&'tis odd.\n.TP\n\\fIWORD\\fR\n\\&.so it is\n.TP\n"
                 "\\fB\\-f\\fR, \\fB\\-\\-flag\\fR\nA \\e flag\n");
    }

    void helpFitsTheScreen_data()
    {
        addRows<Language>({{"", {u"Usage: "_s, u"2026-03-01 12:00"_s}},
                           {"POSIX", {u"Usage: "_s, u"2026-03-01 12:00"_s}},
                           {"de_DE", {u"Aufruf: "_s, u"01.03.2026 12:00"_s}},
                           {"es_ES", {u"Uso: "_s, u"01/03/2026 12:00"_s}}});
    }
    void helpFitsTheScreen()
    {
        const auto [usage, noon] = rowOf<Language>();
        for (const char *variable : {"LANG", "LC_MESSAGES", "LC_NUMERIC", "LC_TIME"})
            qunsetenv(variable);
        qputenv("LC_ALL", QTest::currentDataTag());
        workbench::speakAsUser(*QCoreApplication::instance());
        QCOMPARE(workbench::momentText(QDateTime(QDate(2026, 3, 1), QTime(12, 0))), noon);
        app::Program program(app::declareCommands);
        const auto tree = program.commandTree();
        std::vector<const CLI::App *> commands{tree.get()};
        int longest = 0;
        for (std::size_t i = 0; i < commands.size(); ++i) {
            const CLI::App *command = commands[i];
            std::ranges::copy(command->get_subcommands({}), std::back_inserter(commands));
            const QString help = QString::fromStdString(command->help());
            QVERIFY2(help.contains(usage), qPrintable(help));
            for (const QString &line : help.split(u'\n')) {
                longest = std::max(longest, app::displayWidth(line));
                QVERIFY2(app::displayWidth(line) <= 80, qPrintable(line));
            }
            // Nothing that is explained is lost on the way.
            for (const CLI::Option *option : command->get_options()) {
                QVERIFY2(help.simplified().contains(
                             QString::fromStdString(option->get_description()).simplified()),
                         qPrintable(help));
            }
        }
        QVERIFY(commands.size() > 80 && longest > 70);
    }

    void helpFitsANarrowTerminal()
    {
        CLI::App command("What is done by it, told at length", "command");
        command.formatter(std::make_shared<app::HelpFormat>(24));
        command.add_option("--größe", "Wie groß es sein darf")->type_name("ZAHL");
        const QString help = QString::fromStdString(command.help());
        QVERIFY2(help.startsWith(u"What is done by it, told\nat length\n"_s), qPrintable(help));
        QVERIFY2(help.contains(u"\n  --größe ZAHL\n      Wie groß es sein\n      darf\n"_s),
                 qPrintable(help));
    }

private:
    /// What is found when standard output is a terminal of so many columns.
    static QString tableText(const QStringList &titles, const std::vector<app::Cell> &cells,
                             std::size_t columns, const app::Terminal &terminal)
    {
        app::Table table(titles, columns);
        for (const app::Cell &cell : cells)
            table.add(cell);
        QString text;
        table.write(terminal, [&text](const QByteArray &line) { text += QString::fromUtf8(line); });
        return text;
    }
    static app::Terminal terminal(int columns)
    {
        std::fflush(stdout);
        const int kept = ::dup(STDOUT_FILENO);
        const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
        ::grantpt(master);
        ::unlockpt(master);
        const int slave = ::open(::ptsname(master), O_RDWR | O_NOCTTY);
        const winsize size{24, static_cast<unsigned short>(columns), 0, 0};
        ::ioctl(slave, TIOCSWINSZ, &size);
        ::dup2(slave, STDOUT_FILENO);
        const app::Terminal found;
        ::dup2(kept, STDOUT_FILENO);
        for (const int opened : {kept, master, slave})
            ::close(opened);
        return found;
    }
};

static const kiv::test::Suite<TestKivPieces> testKivPiecesSuite;
#include "tst_kiv_pieces.moc"
