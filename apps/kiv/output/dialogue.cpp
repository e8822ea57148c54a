// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/dialogue.h"

#include "messages/errors.h"
#include "messages/message_log.h"

#include "foundation/streams.h"

#include <QtCore/QObject>

#include <cstdio>
#include <iostream>

#include <unistd.h>

namespace kiv::app {

bool Dialogue::isPossible()
{
    return ::isatty(STDIN_FILENO) != 0 && ::isatty(STDERR_FILENO) != 0;
}

bool Dialogue::agrees(const QString &question, std::optional<bool> whenEmpty)
{
    const QString yes = QObject::tr("y", "the answer yes, a letter");
    const QString no = QObject::tr("n", "the answer no, a letter");
    bool answer = false;
    const QString choices =
        QStringLiteral(" [%1/%2]")
            .arg(whenEmpty == true ? yes.toUpper() : yes, whenEmpty == false ? no.toUpper() : no);
    until(question + choices, [&](const QString &typed) {
        const QString text = typed.toLower();
        answer = text == yes || text == u"y" || (text.isEmpty() && whenEmpty == true);
        if (!answer && text != no && text != u"n" && !(text.isEmpty() && whenEmpty))
            throw workbench::notAChoice(typed, {yes, no});
    });
    return answer;
}

void Dialogue::until(const QString &question, const std::function<void(const QString &)> &take)
{
    while (true) {
        const QString answer = asked(question);
        try {
            return take(answer);
        } catch (const foundation::Error &error) {
            complain(told(error));
        }
    }
}

void Dialogue::each(const QString &question, const std::function<void(const QString &)> &take)
{
    const QString shown = question + u' ' + QObject::tr("(empty to continue)");
    for (bool isDone = false; !isDone;) {
        until(shown, [&](const QString &text) {
            isDone = text.isEmpty();
            if (!isDone)
                take(text);
        });
    }
}

QString Dialogue::asked(const QString &question)
{
    const QByteArray prompt = foundation::escaped(question).toUtf8() + ": ";
    std::fwrite(prompt.constData(), 1, static_cast<std::size_t>(prompt.size()), stderr);
    std::string line;
    if (!std::getline(std::cin, line))
        throw answersEnded();
    return QString::fromStdString(line).trimmed();
}

} // namespace kiv::app
