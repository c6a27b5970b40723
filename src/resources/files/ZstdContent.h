#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace TARN {

/// Returns what \a packed, the content of a file in a resource file that is packed by zstd, holds;
/// nothing when it is damaged, or more than \a mostBytes, or the toolkit can't unpack it.
std::optional<QByteArray> zstdContent(const QByteArray &packed, qint64 mostBytes);

} // namespace TARN
