// Random texts as the saved state of a feature browser.

#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include "featuretree.h"
#include "fuzztarget.h"
#include "nodemapbuilder.h"

#include <stdexcept>

namespace {

std::unique_ptr<ZetoNodeMap::NodeMap> makeNodeMap()
{
    ZetoNodeMap::NodeMapBuilder builder;
    ZetoNodeMap::declareFeatureTree(builder, 60);
    return builder.build();
}

/// \return false for a text that is refused, which must leave the view as it was
bool load(ZetoGui::ZetoGenParamTreeView& view, const QByteArray& state)
{
    const QByteArray before = view.saveState();
    try {
        view.loadState(state.constData());
        return true;
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
    require(before == view.saveState(), "a refused state changes nothing");
    return false;
}

/// Puts bytes that stand for them in place of the delimiters, so that random inputs have them.
QByteArray withDelimiters(QByteArray input)
{
    return input.replace('\1', "&lt;")
        .replace('\2', "&amp;W")
        .replace('\3', "&amp;V")
        .replace('\4', "&amp;S");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const auto nodeMap = makeNodeMap();
    static ZetoGui::ZetoGenParamTreeView view(nodeMap.get());

    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    if (load(view, withDelimiters(input))) {
        // The splitter settles on sizes that it can have.
        require(load(view, QByteArray(view.saveState())), "a saved state is taken");
        const QByteArray saved = view.saveState();
        require(load(view, saved) && saved == view.saveState(), "a saved state is restored");
    }
    return 0;
}
