// SPDX-License-Identifier: GPL-3.0-or-later
// completion bash|zsh|fish|words|manual
#include "commands/commands.h"

#include "command_line/candidates.h"
#include "command_line/manual.h"
#include "program/program.h"

#include "foundation/streams.h"

#include <CLI/CLI.hpp>

namespace kiv::app {
namespace {

// The scripts pass the words to `completion words` and use what it prints. If that is
// nothing, the shell completes file names.

constexpr const char *bashScript = R"(# bash completion for kiv
_kiv() {
    # The words come as they were typed, with quotes and tildes.
    local words=("${COMP_WORDS[@]:1:COMP_CWORD}")
    words=("${words[@]/#\~\//$HOME/}")
    words=("${words[@]//[\\\"\']/}")
    mapfile -t COMPREPLY < <(kiv completion words -- "${words[@]}" 2>/dev/null)
}
complete -o filenames -o default -F _kiv kiv
)";

constexpr const char *zshScript = R"(#compdef kiv
local -a given found
given=("${(@Q)words[2,CURRENT]}")
given=("${(@)given/#\~\//$HOME/}")
found=("${(@f)$(kiv completion words -- "${given[@]}" 2>/dev/null)}")
if [[ -n $found[1] ]]; then
    compadd -- "${found[@]}"
else
    _files
fi
)";

constexpr const char *fishScript = R"(# fish completion for kiv
function __kiv_words
    set -l given (commandline -opc) (commandline -ct)
    set given (string replace -r '^~(?=/)' $HOME -- $given)
    kiv completion words -- $given[2..] 2>/dev/null
end
complete -c kiv -f -a '(__kiv_words)'
complete -c kiv -n 'not count (__kiv_words) >/dev/null' -F
)";

struct PrintScript {
    const char *script;

    void declare(Arguments &arguments) { arguments.withoutJson(); }
    Report run(Call &) const { return Report().raw(script); }
};

struct PrintManual {
    void declare(Arguments &arguments) { arguments.withoutJson(); }
    Report run(Call &call) const
    {
        return Report().raw(manualOfCommands(*call.program.commandTree()));
    }
};

struct CompleteWords {
    std::vector<QString> words;

    void declare(Arguments &arguments)
    {
        arguments
            .several("WORD", words,
                     QObject::tr("Words of the command line; the last one is incomplete"))
            .withoutJson();
    }
    Report run(Call &call) const
    {
        std::vector<std::string> before;
        before.reserve(words.size());
        for (const QString &word : words)
            before.push_back(word.toStdString());
        std::string begun;
        if (!before.empty()) {
            begun = std::move(before.back());
            before.pop_back();
        }
        Candidates found;
        try {
            found = candidatesAfter(*call.program.commandTree(), before, call.document);
        } catch (const foundation::Error &) {
            // Without a readable budget there are no names to offer.
        }
        const bool wantsOption = begun.starts_with('-');
        QByteArray lines;
        for (const std::string &word : wantsOption ? found.options : found.values) {
            // Names with control characters are not safe on the command line.
            const QString name = QString::fromStdString(word);
            if (word.starts_with(begun) && foundation::escaped(name) == name)
                lines += QByteArray::fromStdString(word) + '\n';
        }
        return Report().raw(lines);
    }
};

} // namespace

void addCompletionCommands(CommandGroup &root)
{
    CommandGroup group =
        root.group("completion", QObject::tr("Print completion scripts or the manual page"));
    using enum CommandKind;
    group.add("bash", QObject::tr("Print the completion script for bash"), Standalone,
              PrintScript{bashScript});
    group.add("zsh", QObject::tr("Print the completion script for zsh"), Standalone,
              PrintScript{zshScript});
    group.add("fish", QObject::tr("Print the completion script for fish"), Standalone,
              PrintScript{fishScript});
    group.add("words", QObject::tr("List completions of the last word"), Standalone,
              CompleteWords{});
    group.add("manual", QObject::tr("Print the commands as part of a manual page"), Standalone,
              PrintManual{});
}

} // namespace kiv::app
