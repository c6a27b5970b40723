#pragma once

#include "Printed.h"

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <commands/Commands.h>
#include <support/ThemeRepository.h>

/// Runs the command "diff" for the themes in the folders \a before and \a after.
Printed diff(const QString &before, const QString &after,
             TARN::ThemeTool::ReportFormat format = TARN::ThemeTool::ReportFormat::Text);

/// Returns what the command "diff" prints of the themes as JSON.
QJsonObject jsonDiff(const QString &before, const QString &after);

/// Returns a theme of two colours; brushes refer to them in every way.
ThemeConfiguration plainConfiguration();

/// Returns the palette roles of that theme, which refer to a colour and to a brush.
QByteArray plainRoles();

/// Two themes of one name that differ in what a test changes.
class Pair
{
public:
    ThemeConfiguration before = plainConfiguration();
    ThemeConfiguration after = plainConfiguration();
    QByteArray rolesBefore = plainRoles();
    QByteArray rolesAfter = plainRoles();

    /// Writes a file of both themes, or of one.
    void write(const char *path, const QByteArray &contentBefore, const QByteArray &contentAfter);
    void writeBefore(const char *path);
    void writeAfter(const char *path);

    Printed diff(TARN::ThemeTool::ReportFormat format = TARN::ThemeTool::ReportFormat::Text) const;

    QJsonObject json() const;

    /// Returns the changes of one section, of which there are some.
    QVector<QJsonObject> changes(const char *section) const;

private:
    ThemeRepository m_before;
    ThemeRepository m_after;
};
