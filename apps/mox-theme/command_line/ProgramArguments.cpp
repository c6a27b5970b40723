#include "command_line/ProgramArguments.h"

namespace TARN::ThemeTool {

ProgramArguments &programArguments()
{
    static ProgramArguments arguments;
    return arguments;
}

} // namespace TARN::ThemeTool
