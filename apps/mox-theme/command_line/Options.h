#pragma once

#include "check/model/Severity.h"
#include "check/reports/ReportFormat.h"
#include "command_line/Shell.h"
#include "generator/tokens/Base.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QColor>

/// What each of the tool's commands is told.
namespace TARN::ThemeTool {

struct CheckOptions
{
    QStringList directories;
    ReportFormat format = ReportFormat::Text;
    QMap<QString, Severity> rules; ///< by name; the others keep their severity
    bool all = false;              ///< name every missing variable, not each family once
};

struct NewOptions
{
    QString name;
    Base base = Base::Dark;
    QColor accent;
    QString out = QStringLiteral("."); ///< the repository in which the theme's folder is created
    bool force = false;                ///< write over a theme that is there
};

struct BuildOptions
{
    QString tokens;
    QString out; ///< the theme's folder
};

struct PreviewOptions
{
    QString directory;
    QString out; ///< empty: beside the theme's folder, named after it
    bool watch = false;
};

struct DiffOptions
{
    QString before;
    QString after;
    ReportFormat format = ReportFormat::Text; ///< Text or Json
};

struct ImportOptions
{
    QString file;
    QString name; ///< empty: the scheme's own
    QString out = QStringLiteral(".");
    bool force = false;
};

struct CompletionOptions
{
    Shell shell = Shell::Bash;
};

} // namespace TARN::ThemeTool
