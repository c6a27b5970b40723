#pragma once

#include "states/ElementSample.h"

namespace TARN::Gallery {

/// \name The makers of the families of samples
/// \{
ElementFamily buttonFamily();
ElementFamily toolButtonFamily();
ElementFamily checkBoxFamily();
ElementFamily inputFamily();
ElementFamily comboBoxFamily();
ElementFamily spinBoxFamily();
ElementFamily sliderFamily();
ElementFamily scrollBarFamily();
ElementFamily progressBarFamily();
ElementFamily tabFamily();
ElementFamily toolBoxFamily();
ElementFamily menuFamily();
ElementFamily itemViewFamily();
ElementFamily headerFamily();
ElementFamily toolBarFamily();
ElementFamily windowFamily();
ElementFamily cardFamily();
ElementFamily frameFamily();
ElementFamily tipAndStatusFamily();
/// \}

} // namespace TARN::Gallery
