#include <support/Components.h>
