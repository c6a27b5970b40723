#pragma once

#include <QtCore/QtGlobal>

/// What the files of a theme may take at most. Whoever reads one holds to these, finds out before
/// the memory is taken, and treats what is beyond them as what can't be read. docs/security.md
/// tells them to people who write themes.
namespace TARN::FileLimits {

/// \name Pixels of a picture, which take four bytes each
/// \{
/// Of one that is asked for by name: 512 MiB, some 11,500 by 11,500 pixels.
constexpr qint64 picturePixels = 1 << 27;
/// Of an icon: 4096 by 4096. A drawing has none of its own here, it is drawn as large as it is
/// asked for.
constexpr qint64 iconPixels = 1 << 24;
/// Of a cursor: 2048 by 2048.
constexpr qint64 cursorPixels = 1 << 22;
/// \}

/// Bytes of a drawing, once it is decompressed.
constexpr qint64 drawingBytes = 1 << 24;

/// \name A resource file
/// \{
/// Bytes of it, and of all that lies in it once it is decompressed.
constexpr qint64 archiveBytes = 1 << 26;
/// Files and folders in it.
constexpr int archiveEntries = 1 << 16;
/// Characters of a path in it.
constexpr int archivePathLength = 1024;
/// \}

/// Files in a theme's folder of images.
constexpr int themeFiles = 1 << 17;

/// Stops of a gradient: painting does not tell more of them apart.
constexpr int gradientStops = 1024;

} // namespace TARN::FileLimits
