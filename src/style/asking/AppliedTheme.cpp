#include "style/asking/AppliedTheme.h"

namespace TARN {

namespace {

AppliedTheme &current()
{
    static AppliedTheme theme;
    return theme;
}

} // namespace

const AppliedTheme &appliedTheme()
{
    return current();
}

void setAppliedTheme(const AppliedTheme &theme)
{
    current() = theme;
}

} // namespace TARN
