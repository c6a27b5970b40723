#pragma once

#include "resources/files/PictureFault.h"

namespace TARN {

/// Tells whether the picture at \a path may be read for \a use. Otherwise a warning has told why,
/// once for as long as the file stays as it is.
///
/// What is neither a file nor a folder, such as a pipe, may not, without a warning. Files are
/// looked into when they are asked for first; what was found out is kept, up to a bound, until the
/// file changes.
bool isAllowedPicture(const QString &path, const PictureUse &use);

} // namespace TARN
