#include "resources/LookUpObserver.h"

#include "resources/variables/LookUps.h"

#include <utility>

namespace TARN {

LookUpObserver observeLookUps(LookUpObserver observer)
{
    return std::exchange(lookUpObserver, observer);
}

} // namespace TARN
