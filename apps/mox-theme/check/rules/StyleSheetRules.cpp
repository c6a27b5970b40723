#include "check/rules/StyleSheetRules.h"

#include "check/model/Demand.h"
#include "text/DidYouMean.h"
#include "text/Literals.h"

#include <resources/ThemeResources.h>
#include <resources/variables/StyleSheetSubstitution.h>
#include <resources/variables/VariablePath.h>
#include <resources/variables/VariantMap.h>

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

const QString compiledInFolder = QStringLiteral(":/TARN/ThemeLibrary/stylesheets");

/// Returns the variables as the library publishes them, without what placeholders never name.
QVariantMap publishedGroups(const Configuration &configuration)
{
    // Fonts exist whatever the file says.
    const QVariant font(QStringLiteral("font"));
    QVariantMap fonts;
    for (const char *name : {"small", "base", "medium", "large"}) {
        fonts.insert(QLatin1String(name), font);
    }
    return {
        {ThemeResources::getColorsVarPrefix(), fillQVariantMap(configuration.colors)},
        {ThemeResources::getInternalColorsVarPrefix(),
         fillQVariantMap(configuration.internalColors)},
        {ThemeResources::getBrushesVarPrefix(), fillQVariantMap(configuration.brushes)},
        {ThemeResources::getInternalBrushesVarPrefix(),
         fillQVariantMap(configuration.internalBrushes)},
        {ThemeResources::getOpacitiesVarPrefix(), fillQVariantMap(configuration.opacities)},
        {ThemeResources::getCornerRadiusVarPrefix(), fillQVariantMap(configuration.cornerRadii)},
        {ThemeResources::getFontsVarPrefix(), fonts},
    };
}

/// Returns the group whose entries the published group \a name is made of.
QString entryGroup(const QString &name)
{
    if (name == ThemeResources::getInternalColorsVarPrefix()) {
        return ThemeResources::getColorsVarPrefix();
    }
    return name == ThemeResources::getInternalBrushesVarPrefix()
               ? ThemeResources::getBrushesVarPrefix()
               : name;
}

QStringList styleSheetsIn(const QString &folder, QDirIterator::IteratorFlags flags)
{
    QStringList paths;
    QDirIterator files(folder, {"*.qss"_s}, QDir::Files, flags);
    while (files.hasNext()) {
        paths.append(files.next());
    }
    paths.sort();
    return paths;
}

/// Returns the text of the stylesheet at \a path as far as the library reads it.
QString styleSheetText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return {};
    }
    return QString::fromUtf8(file.readAll().constData());
}

/// Returns the paths of all variables in \a groups but brushes.
QStringList pathsWithText(const QVariantMap &groups)
{
    QStringList paths;
    for (auto group = groups.cbegin(); group != groups.cend(); ++group) {
        const QVariantMap values = group->toMap();
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            if (value->userType() != QMetaType::QBrush) {
                paths.append(variablePath(group.key(), value.key()));
            }
        }
    }
    return paths;
}

/// Checks the placeholders of one stylesheet after the other.
class PlaceholderCheck
{
public:
    PlaceholderCheck(const Configuration &configuration, FindingList &findings)
        : m_configuration(configuration)
        , m_findings(findings)
        , m_variables(publishedGroups(configuration))
    {
    }

    void checkFile(const QString &path);
    const QSet<QString> &referred() const { return m_referred; }

private:
    QString fault(const QString &variable) const;
    QString suggestion(const QString &variable);
    void report(const QString &path, const QString &variable, const QString &text,
                const Place &place);

    const Configuration &m_configuration;
    FindingList &m_findings;
    QVariantMap m_variables;
    QSet<QString> m_referred;
    QSet<QString> m_reportedCompiledIn;
    KnownNames m_paths;
    bool m_hasPaths = false;
};

void PlaceholderCheck::checkFile(const QString &path)
{
    static const QRegularExpression pattern = placeholderPattern();
    const QString text = styleSheetText(path);
    Place place{path, 1, 1};
    int position = 0;
    QRegularExpressionMatchIterator matches = pattern.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        for (; position < match.capturedStart(); ++position) {
            const bool endsLine = text.at(position) == u'\n';
            place.line += endsLine ? 1 : 0;
            place.column = endsLine ? 1 : place.column + 1;
        }
        const QString variable = match.captured(2);
        const QStringList parts = variable.split(u'/');
        if (parts.size() > 1) {
            const QString group = entryGroup(parts.at(0));
            m_referred.insert(variablePath(group, parts.at(1)));
            m_referred.insert(variablePath(group, withoutDerivedPrefix(parts.at(1))));
        }
        const QString problem = fault(variable);
        if (!problem.isEmpty()) {
            report(path, variable, problem, place);
        }
    }
}

/// Returns why the placeholder of \a variable does not turn into the text of a value; an empty text
/// when it does.
QString PlaceholderCheck::fault(const QString &variable) const
{
    const QVariant value = getThemeVarInternal(m_variables, variable, QVariant());
    if (!value.isValid()) {
        const QStringList parts = variable.split(u'/');
        // The entry is there and has a finding of its own.
        const bool isFaulty = parts.size() > 1 && m_configuration.knows(parts.at(0), parts.at(1));
        return isFaulty ? QString() : "which the theme does not define"_s;
    }
    if (value.userType() == QMetaType::QBrush) {
        return "which is a brush and has no text"_s;
    }
    return value.userType() == QMetaType::QVariantMap ? "which is a group and has no text"_s
                                                      : QString();
}

QString PlaceholderCheck::suggestion(const QString &variable)
{
    if (!m_hasPaths) {
        m_paths = KnownNames(pathsWithText(m_variables));
        m_hasPaths = true;
    }
    return didYouMean(m_paths.nearest(variable));
}

/// Reports a placeholder; one of the library's own stylesheets where the theme has to define what
/// it names, and once.
void PlaceholderCheck::report(const QString &path, const QString &variable, const QString &text,
                              const Place &place)
{
    const QString rule = "unresolved-placeholder"_s;
    const QString sentence = "The stylesheet has a placeholder for "_s + quoted(variable) + ", "_s;
    if (!path.startsWith(u':')) {
        m_findings.add(rule, place, sentence + text, suggestion(variable));
    } else if (!m_reportedCompiledIn.contains(variable)) {
        m_reportedCompiledIn.insert(variable);
        m_findings.add(rule, m_configuration.lists.value(variable.section(u'/', 0, 0)),
                       "The library's "_s + QFileInfo(path).fileName() +
                           " has a placeholder for "_s + quoted(variable) + ", "_s + text);
    }
}

} // namespace

QSet<QString> checkStyleSheets(const QString &directory, const Configuration &configuration,
                               FindingList &findings)
{
    PlaceholderCheck check(configuration, findings);
    const QStringList paths = styleSheetsIn(compiledInFolder, QDirIterator::NoIteratorFlags) +
                              styleSheetsIn(directory, QDirIterator::Subdirectories);
    for (const QString &path : paths) {
        check.checkFile(path);
    }
    return check.referred();
}

} // namespace TARN::ThemeTool
