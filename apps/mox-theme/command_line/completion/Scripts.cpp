#include "command_line/completion/Scripts.h"

#include "text/Literals.h"

#include <QtCore/QRegularExpression>

namespace TARN::ThemeTool {

QString shellQuoted(QString text)
{
    return u'\'' + text.replace(u'\'', "'\\''"_s) + u'\'';
}

QString briefly(const QString &description)
{
    static const QRegularExpression details("; |: | \\("_s);
    return description.left(description.indexOf(details));
}

SettingWords settingWords(const CommandDescription::Option &option)
{
    SettingWords words;
    for (const QString &value : option.values) {
        const int equals = value.indexOf(u'=');
        if (equals < 0) {
            return {};
        }
        words.names.append(value.left(equals));
        words.settings.append(value.mid(equals + 1));
    }
    words.names.removeDuplicates();
    words.settings.removeDuplicates();
    return words;
}

} // namespace TARN::ThemeTool
