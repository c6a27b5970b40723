#pragma once

#include "check/model/Configuration.h"
#include "check/rules/EntryList.h"

namespace TARN::ThemeTool {

/// Reads the configuration file \a file and reports what in it the library swallows.
Configuration checkConfiguration(const ThemeFile &file, FindingList &findings);

/// What the checks of the file's sections have in common.
struct SectionCheck
{
    const ThemeFile &file;
    FindingList &findings;
    Configuration &configuration;

    /// Enters \a entry into \a group. Returns a fault when it has no name or the name of an earlier
    /// one; in groups \a withVariants, the names that the library derives are taken, too.
    std::optional<Fault> enter(const QString &group, const QDomElement &entry,
                               bool withVariants = false) const;
};

/// \name The sections of the file; an element that is null stands for a missing one
/// \{
void checkColors(const QDomElement &list, const SectionCheck &check);
void checkBrushes(const QDomElement &list, const SectionCheck &check);
void checkFactors(const QDomElement &section, const SectionCheck &check);
void checkOpacities(const QDomElement &section, const SectionCheck &check);
void checkFont(const QDomElement &section, const SectionCheck &check);
void checkCornerRadii(const QDomElement &section, const SectionCheck &check);
/// \}

} // namespace TARN::ThemeTool
