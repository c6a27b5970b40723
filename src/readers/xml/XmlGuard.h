#pragma once

#include <QtCore/QStringView>

namespace TARN {

/// Tells whether the document \a text may be given to QDomDocument, which follows nested elements
/// and nested declarations by recursion and replaces entity references without a limit.
///
/// Nothing is refused that a person would write into a theme file. Text that is no XML passes
/// when the parser would stop at it anyway. Takes time in proportion to the text.
bool isSafeXml(QStringView text);

} // namespace TARN
