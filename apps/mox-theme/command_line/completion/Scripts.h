#pragma once

#include "command_line/CommandTable.h"

#include <QtCore/QString>

/// Scripts by which shells complete the tool's command line. They are made from its commands, so
/// that they offer what it takes.
namespace TARN::ThemeTool {

QString bashScript();
QString zshScript();
QString fishScript();

/// Returns \a text between single quotes, as every one of the shells reads it.
QString shellQuoted(QString text);

/// Returns what \a description says before it goes into details, for a line of a list.
QString briefly(const QString &description);

/// Settings such as "name=off", "name=warn": what stands before the sign, and what behind it.
struct SettingWords
{
    QStringList names;
    QStringList settings;
};

/// Returns what \a option offers, taken apart; nothing when it is no list of settings.
SettingWords settingWords(const CommandDescription::Option &option);

} // namespace TARN::ThemeTool
