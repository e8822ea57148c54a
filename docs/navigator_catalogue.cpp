// SPDX-License-Identifier: GPL-3.0-or-later
// navigator_catalogue                prints the Navigator's slots and signals as Markdown
// navigator_catalogue --renew FILE   puts them between the two marks in FILE
// navigator_catalogue --check FILE   fails when something else stands there
#include "navigation/navigator.h"

#include <QtCore/QFile>
#include <QtCore/QMetaMethod>
#include <QtCore/QRegularExpression>

#include <array>
#include <iostream>
#include <ranges>

using kiv::navigation::Navigator;

namespace {

const QString beginMark = QStringLiteral("<!-- navigator_catalogue: begin -->\n");
const QString endMark = QStringLiteral("<!-- navigator_catalogue: end -->\n");

std::vector<QMetaMethod> methods(QMetaMethod::MethodType type)
{
    const QMetaObject &meta = Navigator::staticMetaObject;
    std::vector<QMetaMethod> found;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == type)
            found.push_back(meta.method(i));
    }
    return found;
}

QString code(const QByteArray &text)
{
    return u'`' + QString::fromLatin1(text).remove(QStringLiteral("kiv::")) + u'`';
}

QString parameters(const QMetaMethod &method)
{
    const QList<QByteArray> names = method.parameterNames();
    QStringList texts;
    for (int i = 0; i < method.parameterCount(); ++i)
        texts.append(code(method.parameterTypeName(i) + ' ' + names.at(i)));
    return texts.join(QStringLiteral(", "));
}

/// The signals that the slot's name promises: onLookUpX is answered with
/// lookedUpX. None for a slot whose name promises none.
QString promisedAnswers(const QMetaMethod &slot)
{
    static const std::array<std::pair<QRegularExpression, QString>, 6> rules{{
        {QRegularExpression(QStringLiteral("^onPrepareShow")), QStringLiteral("show")},
        {QRegularExpression(QStringLiteral("^onLookUp")), QStringLiteral("lookedUp")},
        {QRegularExpression(QStringLiteral("^onFetch")), QStringLiteral("fetched")},
        {QRegularExpression(QStringLiteral("^onGenerate")), QStringLiteral("generated")},
        {QRegularExpression(QStringLiteral("^onCheck")), QStringLiteral("checked")},
        {QRegularExpression(QStringLiteral("^onSelected")), QStringLiteral("show")},
    }};
    QStringList answers;
    const QString name = QString::fromLatin1(slot.name());
    for (const auto &[verb, answer] : rules) {
        const QString promised = QString(name).replace(verb, answer);
        for (const QMetaMethod &signal : methods(QMetaMethod::Signal)) {
            if (promised == QString::fromLatin1(signal.name()))
                answers.append(code(signal.name()));
        }
    }
    return answers.join(QStringLiteral(", "));
}

QString catalogue()
{
    QString text = QStringLiteral("| Slot | Parameters | Answer | Returns |\n|---|---|---|---|\n");
    for (const QMetaMethod &slot : methods(QMetaMethod::Slot)) {
        const bool isPrivate = slot.access() == QMetaMethod::Private;
        const bool isVoid = slot.returnMetaType() == QMetaType::fromType<void>();
        text += QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                    .arg(code(slot.name()) + (isPrivate ? QStringLiteral(" (private)") : QString()),
                         parameters(slot), promisedAnswers(slot),
                         isVoid ? QString() : code(slot.typeName()));
    }
    text += QStringLiteral("\n| Signal | Parameters |\n|---|---|\n");
    for (const QMetaMethod &signal : methods(QMetaMethod::Signal))
        text += QStringLiteral("| %1 | %2 |\n").arg(code(signal.name()), parameters(signal));
    return text;
}

int fail(const QString &message)
{
    std::cerr << message.toStdString() << '\n';
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 1) {
        std::cout << catalogue().toStdString();
        return EXIT_SUCCESS;
    }
    const QByteArray option(argv[1]);
    if (argc != 3 || (option != "--check" && option != "--renew"))
        return fail(QStringLiteral("Usage: navigator_catalogue [--check FILE | --renew FILE]"));

    const QString path = QString::fromLocal8Bit(argv[2]);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("%1: %2").arg(path, file.errorString()));
    const QString old = QString::fromUtf8(file.readAll());
    file.close();
    const qsizetype begin = old.indexOf(beginMark);
    const qsizetype end = old.indexOf(endMark);
    if (begin < 0 || end < begin)
        return fail(QStringLiteral("%1 lacks the marks around the catalogue.").arg(path));

    const QString renewed = old.left(begin + beginMark.size()) + catalogue() + old.mid(end);
    if (renewed == old)
        return EXIT_SUCCESS;
    if (option == "--check") {
        return fail(QStringLiteral("%1 does not list the Navigator's slots and signals as they "
                                   "are. Renew it with\n    %2 --renew %1")
                        .arg(path, QString::fromLocal8Bit(argv[0])));
    }
    if (!file.open(QIODevice::WriteOnly) || file.write(renewed.toUtf8()) < 0 || !file.flush())
        return fail(QStringLiteral("%1: %2").arg(path, file.errorString()));
    return EXIT_SUCCESS;
}
