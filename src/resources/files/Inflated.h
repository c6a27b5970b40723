#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace TARN {

/// Tells whether \a data begins like a file that gzip has compressed.
bool isGzipped(const QByteArray &data);

/// Returns what \a compressed, in the format of gzip or of zlib, holds; nothing when that is
/// damaged or more than \a mostBytes. It takes no more memory than that to find out.
std::optional<QByteArray> inflated(const QByteArray &compressed, qint64 mostBytes);

} // namespace TARN
