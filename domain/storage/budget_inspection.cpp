// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/budget_inspection.h"

#include "storage/internal/budget_image.h"
#include "storage/internal/faults.h"
#include "storage/internal/file_content.h"
#include "storage/internal/opened_content.h"
#include "storage/internal/schema.h"

#include <algorithm>
#include <new>

namespace kiv::storage {
namespace {

/// The text of the error that `look` throws, if it does.
template <typename Look>
std::optional<QString> faultOf(Look look)
{
    try {
        look();
        return std::nullopt;
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const std::exception &fault) {
        return QString::fromUtf8(fault.what());
    }
}

/// Checks one condition after the other until one fails.
class Judge {
public:
    explicit Judge(BudgetInspection &inspection) : m_inspection(inspection) {}

    template <typename Look>
    void judge(FilePromise promise, Look look)
    {
        if (m_isBroken) {
            m_inspection.judgements.push_back({promise, Verdict::NotJudged, {}});
            return;
        }
        const std::optional<QString> fault = faultOf(look);
        m_isBroken = fault.has_value();
        m_inspection.judgements.push_back({promise, m_isBroken ? Verdict::Broken : Verdict::Kept,
                                           m_isBroken ? QStringList(*fault) : QStringList()});
    }

private:
    BudgetInspection &m_inspection;
    bool m_isBroken = false;
};

/// Of an encrypted file that is not as it was written: what is in it cannot be judged.
BudgetInspection unreadable(BudgetInspection inspection, const QString &fault)
{
    inspection.judgements = {{FilePromise::Identity, Verdict::Kept, {}},
                             {FilePromise::Tables, Verdict::NotJudged, {}},
                             {FilePromise::Seal, Verdict::Broken, {fault}},
                             {FilePromise::Rules, Verdict::NotJudged, {}},
                             {FilePromise::Ties, Verdict::NotJudged, {}}};
    return inspection;
}

} // namespace

BudgetInspection inspectBudget(const QString &filePathName, const KeyRing *keys)
{
    const internal::FileTarget target(filePathName);
    const std::optional<internal::FileContent> content =
        internal::readFile(target, internal::fileSizeMax);
    if (!content)
        throw internal::fileNotFound(filePathName);
    QByteArray bytes = content->bytes;

    BudgetInspection inspection;
    inspection.savedAt = QDateTime::fromSecsSinceEpoch(content->stamp.seconds, Qt::UTC)
                             .addMSecs(content->stamp.nanoseconds / 1'000'000);
    inspection.size = bytes.size();
    inspection.isEncrypted = internal::kindOf(bytes) == internal::FileKind::Encrypted;
    QStringList mended;
    Judge judge(inspection);
    if (inspection.isEncrypted) {
        try {
            bytes = internal::decrypted(bytes, keys, filePathName).bytes;
        } catch (const internal::ContentFault &fault) {
            return unreadable(std::move(inspection), QString::fromUtf8(fault.what()));
        }
    }
    judge.judge(FilePromise::Identity,
                [&] { internal::requireBudget(internal::kindOf(bytes), filePathName); });
    const bool isBudget = internal::kindOf(bytes) == internal::FileKind::Budget;
    const std::optional<internal::BudgetImage> image =
        isBudget ? std::optional<internal::BudgetImage>(bytes) : std::nullopt;
    const auto judgeSeal = [&] { judge.judge(FilePromise::Seal, [&] { image->checkSeal(); }); };
    // SQLite sees no byte that the seal may call wrong.
    if (image && image->hasByteSeal())
        judgeSeal();
    judge.judge(FilePromise::Tables, [&] { image->checkTables(); });
    if (!image || !image->hasByteSeal())
        judgeSeal();
    judge.judge(FilePromise::Rules, [&] {
        Version version = image->version(mended);
        inspection.mark = std::move(version.mark);
        inspection.data = std::move(version.data);
        inspection.reconciliations = std::move(version.reconciliations);
        inspection.notes = std::move(version.notes);
    });
    judge.judge(FilePromise::Ties, [] {});
    std::ranges::sort(inspection.judgements, {}, &Judgement::promise);
    if (!mended.isEmpty()) {
        inspection.judgements.back().verdict = Verdict::Mended;
        inspection.judgements.back().reasons = mended;
    }
    return inspection;
}

} // namespace kiv::storage
