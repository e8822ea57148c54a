// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/desk.h"

#include "workbench/document/encryption_text.h"
#include "workbench/requests/entry_notices.h"

#include "foundation/clock.h"

namespace kiv::desktop {

namespace {
const QString entryNotice = QStringLiteral("entry");
}

Desk::Desk(const Parts &parts) : m_parts(parts)
{
    connect(&m_parts.document.news(), &workbench::DocumentNews::changed, this,
            &Desk::refreshWanted);
    connect(&m_parts.document.news(), &workbench::DocumentNews::changed, this,
            [this] { notices().remove(entryNotice); });
}

std::optional<QString> Desk::whyNoChange() const
{
    workbench::Document &document = m_parts.document;
    if (document.file().isEmpty())
        return tr("No budget is open.");
    if (document.isReadOnly())
        return document.whyReadOnly();
    if (document.requests().isBusy())
        return tr("Another request is not answered yet; try again in a moment.");
    return std::nullopt;
}

bool Desk::perform(FieldMessage &message, QWidget *asker, const workbench::Deed &deed,
                   const std::function<void()> &work)
{
    return attempt(message, asker, deed.line, [&] { m_parts.document.perform(deed, work); });
}

bool Desk::enter(FieldMessage &message, QWidget *asker, const workbench::Deed &deed,
                 const std::function<void()> &work, QStringList sentences)
{
    const bool isDone = perform(message, asker, deed, [&] {
        const auto before = document().present();
        work();
        sentences += workbench::entryNotices(before, document().present(), foundation::today(),
                                             requests().displayAs());
    });
    if (isDone && !sentences.isEmpty())
        notices().add({entryNotice, sentences.join(u'\n'), {}});
    return isDone;
}

bool Desk::apply(FieldMessage &message, QWidget *asker, const QString &line,
                 const std::function<void()> &work)
{
    if (!attempt(message, asker, line, work))
        return false;
    emit refreshWanted();
    return true;
}

bool Desk::attempt(FieldMessage &message, QWidget *asker, const QString &line,
                   const std::function<void()> &work)
{
    if (const std::optional<QString> reason = whyNoChange()) {
        message.complain(asker, *reason);
        return false;
    }
    if (const auto refused = refusalOf(work)) {
        message.complain(asker, *refused);
        return false;
    }
    message.withdraw();
    say(line);
    return true;
}

void Desk::wait(const QString &line, const std::function<void()> &work)
{
    say(line);
    const auto after = qScopeGuard([this] { emit refreshWanted(); });
    requests().within([&] {
        emit refreshWanted();
        work();
    });
}

bool Desk::tryWork(const QString &id, const std::function<void()> &work)
{
    notices().remove(id);
    const auto refused = refusalOf(work);
    if (refused) {
        notices().add({id, *refused, {}});
        say(*refused);
    }
    return !refused;
}

void Desk::writeOut(const QString &id, const QString &file, const std::function<void()> &work)
{
    if (!tryWork(id, work))
        return;
    const QString sentence = tr("Exported to “%1”.").arg(file);
    say(document().isEncrypted() ? sentence + u' ' + workbench::outputIsReadable() : sentence);
}

std::optional<QString> Desk::keptPassphrase(const QString &file)
{
    return settings().isPassphraseKept(file) ? m_parts.passphrases.kept(file) : std::nullopt;
}

void Desk::forgetPassphrase(const QString &file)
{
    if (!settings().isPassphraseKept(file))
        return;
    m_parts.passphrases.forget(file);
    settings().setPassphraseKept(file, false);
}

void Desk::keepPassphrase(const QString &file, const QString &passphrase)
{
    tryWork(QStringLiteral("keyring"), [&] {
        m_parts.passphrases.keep(file, passphrase);
        settings().setPassphraseKept(file, true);
    });
}

} // namespace kiv::desktop
