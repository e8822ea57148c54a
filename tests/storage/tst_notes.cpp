// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "storage/internal/faults.h"
#include "storage/internal/note_text.h"
#include "storage/notes.h"

using namespace kiv::storage;
using storage::internal::noteFromText;
using storage::internal::noteText;

namespace {

QJsonValue nested(int depth)
{
    QJsonValue value;
    for (; depth > 0; --depth)
        value = QJsonArray{value};
    return value;
}

} // namespace

class NotesTest : public QObject {
    Q_OBJECT

private slots:
    /// Otherwise a note could be saved that makes the file unreadable, or changes with
    /// each save.
    void notesAreKeptAsTheirTextIs()
    {
        const QString half(QChar(u'\xD800'));
        for (const QJsonValue &value :
             {QJsonValue(), QJsonValue(true), QJsonValue(-0.0), QJsonValue(0.1), QJsonValue(1e300),
              QJsonValue(9007199254740993.0), QJsonValue(qQNaN()), QJsonValue(QString()),
              QJsonValue(half + u"\"\\\x7f\u2028"_qs), nested(400),
              QJsonValue(QJsonObject{{half, 1}, {u"b"_qs, nested(2)}, {QString(), 2.5}})}) {
            Notes notes;
            notes.set(u"key"_qs, value);
            const QJsonValue kept = notes.value(u"key"_qs);
            QCOMPARE(noteFromText(noteText(kept)), kept);
            QCOMPARE(noteText(noteFromText(noteText(kept))), noteText(kept));
        }
    }

    void whatAFileCannotHoldIsRefused()
    {
        Notes notes;
        for (std::size_t count = 0; count < Notes::countMax; ++count)
            notes.set(QString(200, QChar(static_cast<char16_t>(256 + count))), 1);
        const Notes full = notes;
        const QString first = full.begin()->first;
        const auto text = [](int size) { return QString(size, u'x'); };
        const std::pair<QString, QJsonValue> refused[] = {{QString(), 1},
                                                          {QString(201, u'a'), 1},
                                                          {u"one more"_qs, 1},
                                                          {first, text(65'535)},
                                                          {first, nested(3000)}};
        for (const auto &[key, value] : refused)
            QVERIFY_THROWS_EXCEPTION(StorageError, notes.set(key, value));
        QCOMPARE(notes, full);
        notes.set(first, text(65'534));
        notes.set(first, QJsonValue::Undefined);
        QCOMPARE(notes.size(), Notes::countMax - 1);
        for (const char *malformed : {"", "1,2", "1],[2", "{\"a\":1", "nul", "\"\xff\"", "[1]x"})
            QVERIFY_THROWS_EXCEPTION(storage::internal::ContentFault,
                                     (void)noteFromText(malformed));
    }
};

static const kiv::test::Suite<NotesTest> notesSuite;
#include "tst_notes.moc"
