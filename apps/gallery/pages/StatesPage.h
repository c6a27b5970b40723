#pragma once

class QWidget;

namespace TARN::Gallery {

struct ElementFamily;

/// Creates a table of the samples of \a family, which must live on: samples below each other,
/// states side by side. The caller owns it.
QWidget *createStatesPage(const ElementFamily &family);

} // namespace TARN::Gallery
