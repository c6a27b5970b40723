#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QColor>

/// The tool's commands. Each runs to its end and returns the tool's exit code.
namespace TARN::ThemeTool {

enum ExitCode {
    Fine = 0,
    Findings = 1, ///< the command ran, and found something
    CannotRun = 2 ///< wrong usage, or input that cannot be read
};

enum class Base { Dark, Light, HighContrast };
enum class ReportFormat { Text, Json, Sarif, Github };
enum class Severity { Off, Warning, Error };
enum class Shell { Bash, Zsh, Fish };

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

int runCommand(const CheckOptions &options);
int runCommand(const NewOptions &options);
int runCommand(const BuildOptions &options);
int runCommand(const PreviewOptions &options);
int runCommand(const DiffOptions &options);
int runCommand(const ImportOptions &options);
int runCommand(const CompletionOptions &options);

} // namespace TARN::ThemeTool
