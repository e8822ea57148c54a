// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/dialogue.h"

#include "messages/errors.h"
#include "messages/message_log.h"
#include "output/unseen_typing.h"

#include "foundation/streams.h"

#include <QtCore/QObject>

#include <cstdio>
#include <iostream>

#include <unistd.h>

namespace kiv::app {

namespace {

void prompt(const QString &question)
{
    const QByteArray shown = foundation::escaped(question).toUtf8() + ": ";
    std::fwrite(shown.constData(), 1, static_cast<std::size_t>(shown.size()), stderr);
}

/// A terminal cuts a longer line without a word.
constexpr qsizetype typedMax = 4095;

/// A line that nobody sees, at a terminal. Throws answersEnded() when it is given up.
QByteArray askedUnseen(const QString &question)
{
    QByteArray line;
    int sign = EOF;
    {
        const UnseenTyping whileTyped; // before anybody sees that it is asked
        prompt(question);
        while ((sign = std::getc(stdin)) != EOF && sign != '\n' && sign != UnseenTyping::interrupt)
            line.append(static_cast<char>(sign));
    }
    std::fputc('\n', stderr);
    if (sign != '\n')
        throw answersEnded();
    if (line.size() >= typedMax)
        throw typedTooLong(typedMax);
    return line;
}

} // namespace

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

template <typename Ask, typename Take>
void Dialogue::repeat(Ask ask, Take take)
{
    while (true) {
        const auto answer = ask();
        try {
            return take(answer);
        } catch (const foundation::Error &error) {
            complain(told(error));
        }
    }
}

void Dialogue::until(const QString &question, const std::function<void(const QString &)> &take)
{
    repeat([&] { return asked(question); }, take);
}

void Dialogue::untilSecret(const QString &question,
                           const std::function<void(const QByteArray &)> &take)
{
    repeat([&] { return askedUnseen(question); }, take);
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
    prompt(question);
    std::string line;
    if (!std::getline(std::cin, line))
        throw answersEnded();
    return QString::fromStdString(line).trimmed();
}

} // namespace kiv::app
