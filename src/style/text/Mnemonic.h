#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QString>

class QTextLayout;

namespace TARN {

/// What an ampersand in a text means.
enum class Mnemonic {
    None,      ///< an ampersand
    Hidden,    ///< it marks the key that chooses the item, which is not shown
    Underlined ///< it marks the key that chooses the item, which is underlined
};

/// A text without the ampersands that mark keys.
struct MnemonicText
{
    QString text;
    int underlined = -1; ///< the character to be underlined
};

MnemonicText readMnemonic(const QString &source, Mnemonic mnemonic);

/// Returns the flags by which QPainter draws texts with mnemonics for \a request.
int mnemonicFlags(const PaintRequest &request);

/// Underlines the key in \a layout, whose text must be that of \a label.
void underline(QTextLayout &layout, const MnemonicText &label);

} // namespace TARN
