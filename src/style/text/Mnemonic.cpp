#include "style/text/Mnemonic.h"

#include <QtGui/QTextLayout>

namespace TARN {

MnemonicText readMnemonic(const QString &source, Mnemonic mnemonic)
{
    if (mnemonic == Mnemonic::None || !source.contains(QLatin1Char('&'))) {
        return {source};
    }
    MnemonicText label;
    for (int i = 0; i < source.size(); ++i) {
        if (source[i] != QLatin1Char('&')) {
            label.text += source[i];
        } else if (++i < source.size()) {
            if (mnemonic == Mnemonic::Underlined && source[i] != QLatin1Char('&')) {
                label.underlined = label.text.size();
            }
            label.text += source[i];
        }
    }
    return label;
}

int mnemonicFlags(const PaintRequest &request)
{
    const QStyle &proxy = request.proxy();
    return proxy.styleHint(QStyle::SH_UnderlineShortcut, request.option, request.widget) != 0
               ? Qt::TextShowMnemonic
               : Qt::TextHideMnemonic;
}

void underline(QTextLayout &layout, const MnemonicText &label)
{
    if (label.underlined >= 0) {
        QTextCharFormat format;
        format.setFontUnderline(true);
        layout.setFormats({{label.underlined, 1, format}});
    }
}

} // namespace TARN
