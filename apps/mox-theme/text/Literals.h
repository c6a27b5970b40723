#pragma once

#include <QtCore/QString>

#include <cstddef>

namespace TARN::ThemeTool {

/// Turns the UTF-8 text before it into a QString.
inline QString operator""_s(const char *text, std::size_t length)
{
    return QString::fromUtf8(text, static_cast<int>(length));
}

} // namespace TARN::ThemeTool
