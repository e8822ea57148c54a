// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_storage.h"

#include <memory>

namespace kiv::storage {

/// A budget in a file. docs/file-format.md describes the file, how it is
/// saved, and what is mended when it is loaded.
///
/// A file that was loaded or stored stays locked against every other
/// BudgetFile, here or in another process, until another file is loaded or
/// stored or this object ends.
class KIV_STORAGE_EXPORT BudgetFile final : public BudgetStorage {
public:
    /// How many previous versions are kept next to the file unless told
    /// otherwise.
    static constexpr unsigned backupsByDefault = 5;

    /// Keeps as many previous versions next to the file.
    explicit BudgetFile(unsigned backups = backupsByDefault);
    ~BudgetFile() override;

    void setFilePathName(const QString &filePathName) override;
    /// The data as load() gives it: what does not fit together but could be made so
    /// by allowed requests is mended, with a warning in the log for each mended thing.
    [[nodiscard]] static Data mended(Data data);

    /// Mended where it needs it.
    [[nodiscard]] Data load() override;
    void store(const Data &data) override;
    /// Names the change that the next store saves, in a line such as "Paid Rent".
    void setChange(const QString &change) { m_change = change; }
    /// The file that was chosen; empty before. A load or store that fails chooses the
    /// one that was loaded or saved last again, if there is one.
    [[nodiscard]] QString filePathName() const override;

private:
    class OpenFile;
    /// The file that was chosen: the open one, or another one.
    struct Chosen {
        std::unique_ptr<OpenFile> other;
        OpenFile *file;
    };

    [[nodiscard]] Chosen choose();
    void goBack() noexcept;

    unsigned m_backups;
    QString m_chosenPath;
    QString m_change;
    std::unique_ptr<OpenFile> m_open;
};

} // namespace kiv::storage
