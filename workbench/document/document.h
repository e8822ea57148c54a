// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include "foundation/qt_ptr.h"
#include "networking/request_sender.h"
#include "storage/budget_storage.h"

#include <functional>
#include <memory>

namespace kiv::workbench {

class RecallingStorage;

/// What a front end brings along for its Navigator.
struct Surroundings {
    /// Makes what reaches the network.
    std::function<foundation::UniqueQtPtr<networking::RequestSender>()> makeSender;
    /// The file with the exchange rates.
    QString ratesFile;
};

/// One Navigator with the budget file on which it works: what is open, what is
/// unsaved, and what went wrong with it.
class KIV_WORKBENCH_EXPORT Document {
public:
    /// What it works with.
    using Navigator = navigation::Navigator;

    /// Touches no file and makes no Navigator yet.
    explicit Document(Surroundings surroundings);
    ~Document();
    Document(const Document &) = delete;
    Document &operator=(const Document &) = delete;

    /// Made when it is first asked for, since a call that only prints its help
    /// should not wait for it.
    [[nodiscard]] Navigator &navigator();
    /// How to ask the Navigator.
    [[nodiscard]] Requests &requests() noexcept { return m_requests; }
    /// How currencies are to be shown; by their codes as long as there is no
    /// Navigator that knows.
    [[nodiscard]] navigation::CurrencyDisplayOptions displayAs();

    /// The path with the extension that every budget file has.
    [[nodiscard]] static QString withExtension(const QString &path);
    /// The open file; empty when there is none.
    [[nodiscard]] const QString &file() const noexcept { return m_file; }
    /// Throws what the storage throws, and a Refusal as refuseUnsaved() does; the
    /// open file stays open then.
    void open(const QString &file);
    /// Throws a Refusal when there is a file of this name.
    static void refuseExisting(const QString &file);
    /// Stores the budget in memory as a new file. Refused when there is one.
    void create(const QString &file);
    /// Writes the budget to its file. The exchange rates are stored with it; when
    /// they alone cannot be, that is a warning.
    void save();
    /// The same under another name, which is the open file from then on.
    void saveAs(const QString &file);
    /// Throws a Refusal when the last save of the open file failed, since what it
    /// should have held is in memory alone.
    void refuseUnsaved() const;
    /// The same, but tries to save once more.
    void saveUnsaved();
    /// Gives up what was changed since save() was last called, whether or not it
    /// could save.
    void revert();
    /// Puts a former version of the open file in the place of the budget in
    /// memory; the file is as it was until that is saved.
    void recall(storage::BudgetStorage::Data version);
    /// The budget in memory as it would be saved to the open file.
    [[nodiscard]] storage::BudgetStorage::Data present();
    /// Does at once to the budget in memory what the next opening of its file would
    /// do: what does not fit together and could be made so is mended.
    void mend();

private:
    /// Calls a slot that stores the budget, and then the exchange rates.
    template <typename Slot, typename... Values>
    void store(Slot slot, const Values &...values);

    Surroundings m_surroundings;
    std::unique_ptr<Navigator> m_navigator;
    RecallingStorage *m_storage = nullptr; ///< the Navigator's
    QString m_file;
    Requests m_requests;
};

} // namespace kiv::workbench
