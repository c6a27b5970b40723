#include "readers/BrushReader.h"

BrushReader::~BrushReader() = default;
