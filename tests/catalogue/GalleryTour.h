#pragma once

/// Shows every page of the gallery, and of each all widgets under the mouse, pressed, with the
/// focus and disabled.
void tourGallery();
