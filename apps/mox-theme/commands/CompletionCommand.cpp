#include "command_line/Terminal.h"
#include "command_line/completion/Scripts.h"
#include "commands/Commands.h"

namespace TARN::ThemeTool {

int runCommand(const CompletionOptions &options)
{
    switch (options.shell) {
    case Shell::Bash:
        print(bashScript());
        break;
    case Shell::Zsh:
        print(zshScript());
        break;
    case Shell::Fish:
        print(fishScript());
        break;
    }
    return Fine;
}

} // namespace TARN::ThemeTool
