// SPDX-License-Identifier: GPL-3.0-or-later
#include "fault_rig.h"

#include "navigation/internal/budget_bank_ledgers.h"

#include "conversion/currency_converter.h"
#include "networking/request_manager.h"
#include "numira/library.h"

#include <QtCore/QRegularExpression>

#include <span>

namespace kiv::test {

using conversion::CurrencyConverter;
using navigation::internal::BudgetBankLedgers;

namespace {

// A way to what a Navigator keeps to itself: an explicit instantiation may name
// private members.
template <typename Tag, auto Member>
struct Opened {
    friend auto member(Tag) { return Member; }
};
struct Books {
    friend auto member(Books);
};
struct Tags {
    friend auto member(Tags);
};
struct File {
    friend auto member(File);
};
struct Dirty {
    friend auto member(Dirty);
};
template struct Opened<Books, &Navigator::m_budgetBankLedgers>;
template struct Opened<Tags, &Navigator::m_tagManager>;
template struct Opened<File, &Navigator::m_budgetFile>;
template struct Opened<Dirty, &Navigator::m_isDirty>;

/// What may stay behind a failure, on purpose; docs/domain.md gives the reasons.
struct Deliberate {
    const char *rows;  ///< the requests, as a pattern
    const char *calls; ///< the calls that failed
    QSet<QString> parts;
};
const Deliberate mayStay[] = {
    {"^item|^configuration|^processing: show",
     "GeneralLedger3add|GeneralLedger4post|GeneratorppEv",
     {u"budget"_qs}},
    {"rename|new name", "GeneralLedger6ledger|GeneralLedger6recode", {u"budget"_qs}},
    {"^account: re(code|name)", "BankMap|renamedAccount", {u"ledger"_qs, u"banks"_qs}},
    {"^bank: reopen", "BankMap4bank|GeneralLedger4open", {u"banks"_qs, u"ledger"_qs}},
    {"^survey", "", {u"ledger"_qs, u"flag"_qs}},
    {"^file: (save|check)", "store rates", {u"file"_qs}},
    {"^network|rates", "store rates|send", {u"rates"_qs}},
    {"^file: wizard|^configuration: store|own window$", "", {u"preferences"_qs}},
};
/// Where a failure of a domain call is no failure of the request: an item whose
/// account cannot be read counts as one without, and the log says so.
const Deliberate mayGoOn[] = {
    {"item view: (debts|goals|a goal)|remove|tags go|refundable|^survey: generate|^network",
     "GeneralLedger6ledger|send",
     {}},
    {"^file: wizard", "", {}},
};

bool isMatch(const char *pattern, const QByteArray &text)
{
    return QRegularExpression(QString::fromLatin1(pattern))
        .match(QString::fromUtf8(text))
        .hasMatch();
}

bool isDeliberate(std::span<const Deliberate> list, const QByteArray &row, const QStringList &parts)
{
    return std::ranges::any_of(list, [&](const Deliberate &one) {
        return isMatch(one.rows, row) &&
               (fault.place == Fault::Place::Memory || isMatch(one.calls, fault.failed)) &&
               one.parts.contains(QSet<QString>(parts.begin(), parts.end()));
    });
}

QMap<QString, QVariant> settings()
{
    QMap<QString, QVariant> all;
    const QSettings settings;
    for (const QString &key : settings.allKeys())
        all.insert(key, settings.value(key));
    return all;
}

} // namespace

struct Held {
    explicit Held(Navigator &navigator)
        : books(*(navigator.*member(Books()))),
          tags(navigator.*member(Tags())),
          file(navigator.*member(File())),
          isDirty(navigator.*member(Dirty())),
          rates(CurrencyConverter::cache()),
          preferences(settings())
    {
    }
    void giveTo(Navigator &navigator) const
    {
        *(navigator.*member(Books())) = BudgetBankLedgers(books);
        navigator.*member(Tags()) = tags;
        navigator.*member(File()) = file;
        navigator.*member(Dirty()) = isDirty;
        CurrencyConverter::initialiseCache(conversion::ConversionMap(rates));
    }
    /// The parts in which the two differ.
    [[nodiscard]] QStringList difference(const Held &other) const
    {
        QStringList parts;
        const auto compare = [&](const char *part, const auto &a, const auto &b) {
            if (!(a == b))
                parts.append(QString::fromLatin1(part));
        };
        const auto next = [](const Held &held) {
            return std::unique_ptr(held.books.accountCodeNumberGenerator().clone())->operator++();
        };
        compare("ledger", books.generalLedger(), other.books.generalLedger());
        compare("budget", books.budget(), other.books.budget());
        compare("item accounts", books.budgetLedgers().budgetAccountCodes(),
                other.books.budgetLedgers().budgetAccountCodes());
        compare("banks", books.banks(), other.books.banks());
        compare("surveys", books.surveys(), other.books.surveys());
        compare("next number", next(*this), next(other));
        compare("tags", tags, other.tags);
        compare("file", file, other.file);
        compare("flag", isDirty, other.isDirty);
        compare("rates", rates, other.rates);
        compare("preferences", preferences, other.preferences);
        return parts;
    }

    BudgetBankLedgers books;
    tagging::BudgetTagManager tags;
    std::optional<QString> file;
    bool isDirty;
    conversion::ConversionMap rates;
    QMap<QString, QVariant> preferences;
};

/// One run of a request on a desk of its own. What it holds is compared at
/// every answer: a success is where the next request begins, a failure leaves
/// everything as it was there.
class FaultRig::Trial {
public:
    explicit Trial(FaultRig &rig)
        : m_desk(ScriptedSender::json("{}"), std::make_shared<MemoryDisk>())
    {
        rig.m_settings.reset();
        m_desk.disk->files = rig.m_files;
        if (rig.m_before) {
            if (rig.m_before->file)
                m_desk.navigator->onConfirmedLoadBudgetFile(*rig.m_before->file, false);
            rig.m_before->giveTo(*m_desk.navigator);
        }
        (void)m_desk.take();
        m_last.emplace(*m_desk.navigator);
        m_watch.emplace(*m_desk.navigator);
        m_watch->ignore(u"checkedIsBudgetFileDirty"_qs, true); // the desk asks, too
        m_watch->annotate([this](const QString &name) {
            heard(name);
            return QString();
        });
    }

    void make(const Request &request)
    {
        fault.isOn = true;
        try {
            request(*m_desk.navigator);
        } catch (const std::exception &error) {
            fault.isOn = false;
            thrown = QString::fromUtf8(error.what());
        }
        fault.isOn = false;
        if (thrown)
            compare(QStringLiteral("exception"));
        said = m_watch->take();
    }

    [[nodiscard]] Held held() { return Held(*m_desk.navigator); }
    Desk &desk() { return m_desk; }

    std::optional<QString> thrown;
    int answers = 0;
    int failures = 0;
    std::map<QString, QStringList> traces; ///< what differs behind a failure
    QStringList said;

private:
    void heard(const QString &name)
    {
        static const QStringList changing{u"loadedBudgetFile"_qs, u"savedBudgetFile"_qs,
                                          u"showNewBudget"_qs, u"showNewBudgetFirstTimeWizard"_qs};
        const bool isFailure = name.endsWith(u"Failed"_qs);
        const bool isSuccess = name.endsWith(u"Succeeded"_qs);
        failures += isFailure;
        answers += isFailure || isSuccess;
        if (!isSuccess && !changing.contains(name))
            compare(name);
        m_last.emplace(*m_desk.navigator);
    }
    void compare(const QString &answer)
    {
        const QStringList parts = m_last->difference(Held(*m_desk.navigator));
        if (!parts.isEmpty())
            traces[answer] += parts;
    }

    Desk m_desk;
    std::optional<Held> m_last;
    std::optional<SignalLog> m_watch;
};

FaultRig::FaultRig(const Request &prepare)
{
    Trial making(*this);
    numira::setUpLibrary(
        [](const numira::Currency &, const numira::Currency &) {
            fault.pass("convert");
            return numira::FloatingPoint("1.25");
        },
        "en_US", numira::ShouldAllowFallback::Yes);
    making.desk().furnish();
    prepare(*making.desk().navigator);
    m_before = std::make_unique<Held>(making.held());
    m_files = making.desk().disk->files;
}

FaultRig::~FaultRig() = default;

long FaultRig::callsOf(const Rows::value_type &row, Fault::Place place)
{
    Trial trial(*this);
    fault = {};
    fault.place = place;
    trial.make(row.second);
    m_said = trial.said;
    m_thrown = trial.thrown;
    m_answers = trial.answers;
    m_traces = trial.traces;
    m_after = std::make_unique<Held>(trial.held());
    return fault.count;
}

QString FaultRig::brokenPromise(const Rows::value_type &row, Fault::Place place, Fault::Kind kind,
                                long due)
{
    Trial trial(*this);
    fault = {};
    fault.place = place;
    fault.kind = kind;
    fault.due = due;
    trial.make(row.second);
    if (fault.failed == nullptr)
        return place == Fault::Place::Memory ? QString() // something is kept from the last time
                                             : QStringLiteral("the call was not made again");
    QStringList broken;
    for (const auto &[answer, parts] : trial.traces) {
        const auto usual = m_traces.find(answer);
        const bool isUsual = usual != m_traces.end() && usual->second == parts;
        if (!isUsual && !isDeliberate(mayStay, row.first, parts))
            broken.append(answer + u" with another "_qs + parts.join(u", "_qs));
    }
    // Whoever ends with an exception has answered no more than without the fault.
    const bool isEachAnswered = trial.thrown ? trial.answers <= m_answers
                                : m_thrown   ? trial.answers <= m_answers + 1
                                             : trial.answers == m_answers;
    const bool isWizard = row.first.startsWith("file: wizard");
    if (!isEachAnswered && !isWizard)
        broken.append(QStringLiteral("other answers: ") + trial.said.join(u' ').left(300));
    const bool isFailure = trial.thrown || trial.failures > 0;
    if (!isFailure && place == Fault::Place::Calls && !isDeliberate(mayGoOn, row.first, {}))
        broken.append(QStringLiteral("it went on"));

    // What left everything as it was must do as if nothing had been.
    if (trial.held().difference(*m_before).isEmpty()) {
        trial.thrown.reset();
        trial.make(row.second);
        if (trial.said != m_said)
            broken.append(QStringLiteral("then said: ") + trial.said.join(u' ').left(300));
        const QStringList parts = trial.held().difference(*m_after);
        if (!parts.isEmpty())
            broken.append(QStringLiteral("then another ") + parts.join(u", "_qs));
    }
    return broken.isEmpty() ? QString()
                            : QString::fromLatin1(fault.failed ? fault.failed : "?") + u": "_qs +
                                  broken.join(u"; "_qs);
}

void checkRequests(Fault::Place place, int runs)
{
    QFETCH(const Request, prepare);
    const bool isMemory = place == Fault::Place::Memory;
    Rows rows = allRequests();
    // Left out are those whose first step is silent, so that nobody can tell where it ends,
    // and those that take the same ways as others.
    std::erase_if(rows, [](const auto &row) {
        return row.first.contains("when empty") || row.first.contains("without a file") ||
               row.first.startsWith("more ");
    });
    // Qt's own connections between objects do not survive want of memory.
    if (!isMemory) {
        const auto fetch = [](Navigator &n) {
            n.onFetchExchangeRates({numira::toCurrency("EUR")});
        };
        const auto refresh = [](Navigator &n) {
            QMetaObject::invokeMethod(&n, "updateAllExpiredExchangeRates");
        };
        rows.push_back({"network: fetch rates", fetch});
        rows.push_back({"network: refresh rates", refresh});
        rows.push_back({"network: release notes", [](Navigator &n) { n.onFetchReleaseNotes(); }});
    }
    FaultRig rig(prepare);
    QStringList broken;
    long trials = 0;
    for (const auto &row : rows) {
        const long calls = rig.callsOf(row, place);
        const long step = isMemory ? std::max(1L, calls / runs) : 1;
        for (long due = 1 + trials % step; due <= calls; due += step) {
            for (int i = 0; i < (isMemory ? 1 : runs); ++i) {
                const auto kind = isMemory ? Fault::Kind::Memory : Fault::Kind(trials % 3);
                ++trials;
                const QString promise = rig.brokenPromise(row, place, kind, due);
                if (!promise.isEmpty())
                    broken.append(QStringLiteral("%1, call %2 of %3, kind %4: %5")
                                      .arg(QString::fromUtf8(row.first), QString::number(due),
                                           QString::number(calls), QString::number(int(kind)),
                                           promise));
            }
        }
    }
    qInfo() << trials << "faults";
    QVERIFY2(broken.isEmpty(), qPrintable(broken.join(u'\n')));
    QVERIFY(trials > 200);
}

} // namespace kiv::test
