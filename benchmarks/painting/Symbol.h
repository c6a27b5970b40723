#pragma once

class QIcon;

/// Returns an icon that is the same under every style.
QIcon symbol();
