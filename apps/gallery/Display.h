#pragma once

namespace TARN::Gallery {

/// Tells whether the environment names a display, or a platform that the user chose instead. Can be
/// asked for before the application object exists.
bool hasDisplay();

} // namespace TARN::Gallery
