#include "intview.h"

#include "izetocamconfigintconverter.h"

#include <ZetoGenParam.h>

#include <algorithm>

namespace ZetoGui {

IntView viewOf(ZetoGenParam::Int& param, IZetoCamConfigIntConverter* converter, int64_t limit)
{
    const auto shown = [&](int64_t number) {
        return converter ? converter->ToWidget(number, &param) : number;
    };
    const auto limited = [&](int64_t number) { return std::min(shown(number), limit); };
    int32_t ignored = 0; // what cannot be read is shown as 0
    IntView view;
    view.maximum = static_cast<int>(limited(param.GetMax(&ignored)));
    view.minimum = static_cast<int>(shown(param.GetMin(&ignored)));
    const int step = static_cast<int>(shown(param.GetIncrement(&ignored)));
    view.singleStep = step == 0 ? 1 : step;
    view.value = limited(param.GetValue(&ignored));
    return view;
}

} // namespace ZetoGui
