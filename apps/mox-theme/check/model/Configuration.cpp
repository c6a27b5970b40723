#include "check/model/Configuration.h"

namespace TARN::ThemeTool {

const QString derivedPrefix = QStringLiteral("Disabled");

QString withoutDerivedPrefix(const QString &name)
{
    return name.startsWith(derivedPrefix) ? name.mid(derivedPrefix.size()) : name;
}

bool Configuration::knows(const QString &group, const QString &name) const
{
    const auto found = entries.constFind(group);
    return found != entries.cend() &&
           (found->contains(name) || found->contains(withoutDerivedPrefix(name)));
}

} // namespace TARN::ThemeTool
