// The feature browser on trees of 100, 1,000 and 10,000 features of all types, 20 to a category.

#include "bareaccess.h"
#include "browserbench.h"
#include "comparison.h"
#include "genparamtreemodel.h"
#include "genparamtreevisibilityfilterproxymodel.h"
#include "heapuse.h"

#include <QApplication>
#include <QRegExp>

namespace {

using Bench = std::shared_ptr<BrowserBench>;

std::string withSize(const char* what, int features)
{
    return std::string(what) + ", " + std::to_string(features) + " features";
}

/// Asks for the display texts of the values of all rows, as a view does that shows everything.
int readAllTexts(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    int letters = 0;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex name = model.index(row, 0, parent);
        letters += model.index(row, 1, parent).data().toString().size();
        letters += readAllTexts(model, name);
    }
    return letters;
}

void touchNames(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex name = model.index(row, 0, parent);
        benchmark::DoNotOptimize(name.data());
        touchNames(model, name);
    }
}

void compareBuilding(int size, const Bench& bench)
{
    compare(
        withSize("building the model", size), 3,
        [bench](benchmark::State& state) {
            for (auto _ : state) {
                auto model = std::make_unique<GenParamTreeModel>(&bench->nodeMap());
                state.PauseTiming();
                model.reset();
                state.ResumeTiming();
            }
        },
        [bench](benchmark::State& state) {
            for (auto _ : state) {
                const auto handles = walkAndRegister(bench->nodeMap());
                state.PauseTiming();
                for (const auto handle : handles)
                    GenApi::Deregister(handle);
                state.ResumeTiming();
            }
        });

    bench->countReads(true);
    const GenParamTreeModel model(&bench->nodeMap());
    count(withSize("value reads while building", size), bench->takeReadCount(), 0, "reads");
    bench->countReads(false);
}

/// A model with its proxy, shown once as a whole.
struct ShownTree
{
    explicit ShownTree(GenApi::INodeMap& nodeMap)
        : model(&nodeMap)
    {
        proxy.setFilterVisibility(GenApi::Guru);
        proxy.setSourceModel(&model);
        readAllTexts(proxy);
        touchNames(proxy);
    }

    GenParamTreeModel model;
    GenParamTreeVisibilityFilterProxyModel proxy;
};

/// Bytes on the heap, without the callbacks that the nodes own.
double heapOfTree(GenApi::INodeMap& nodeMap)
{
    // Objects that live as long as the program, and as long as the nodes, are made by the first tree.
    std::make_unique<ShownTree>(nodeMap).reset();
    std::vector<GenApi::CallbackHandleType> handles;
    const auto registering = heapLeftBy([&] { handles = walkAndRegister(nodeMap); });
    for (const auto handle : handles)
        GenApi::Deregister(handle);
    const auto list = heapLeftBy([&] { handles = std::vector<GenApi::CallbackHandleType>(); });

    std::unique_ptr<ShownTree> tree;
    const auto all = heapLeftBy([&] { tree = std::make_unique<ShownTree>(nodeMap); });
    return static_cast<double>(all - (registering + list));
}

void countHeap(int size, const Bench& bench)
{
    count(withSize("heap of model, items and proxy", size), heapOfTree(bench->nodeMap()) / size, 160,
          "B/feat.");
}

void compareTexts(int size, const Bench& bench)
{
    // The peer has a new model made for it too: both find the caches in the same state.
    const auto withNewModel = [bench](const auto& work) {
        return [bench, work](benchmark::State& state) {
            for (auto _ : state) {
                state.PauseTiming();
                auto model = std::make_unique<GenParamTreeModel>(&bench->nodeMap());
                state.ResumeTiming();
                work(*model);
                state.PauseTiming();
                model.reset();
                state.ResumeTiming();
            }
        };
    };
    const auto features = featuresOf(bench->nodeMap());
    compare(
        withSize("display text of every value once", size), 1.5,
        withNewModel([](const GenParamTreeModel& model) { benchmark::DoNotOptimize(readAllTexts(model)); }),
        withNewModel([features](const GenParamTreeModel&) {
            for (GenApi::IValue* feature : features)
                benchmark::DoNotOptimize(valueText(*feature));
        }));
}

void compareRepainting(int size, const Bench& bench)
{
    const auto repaint = [](QTreeView& tree) {
        return [&tree](benchmark::State& state) {
            for (auto _ : state)
                tree.viewport()->repaint();
        };
    };
    compare(withSize("repainting 40 rows", size), 1.1, repaint(bench->tree()),
            repaint(bench->constantTree()));
}

void compareFiltering(int size, double limit, const Bench& bench)
{
    compare(
        withSize("one keystroke in the filter", size), limit,
        [bench](benchmark::State& state) {
            bool longer = false;
            for (auto _ : state) {
                longer = !longer;
                bench->filter().setText(longer ? QStringLiteral("e 1") : QStringLiteral("e "));
                BrowserBench::settle();
            }
            bench->filter().clear();
            BrowserBench::settle();
        },
        [bench](benchmark::State& state) {
            const QRegExp longer(QStringLiteral("e 1"), Qt::CaseInsensitive, QRegExp::WildcardUnix);
            const QRegExp shorter(QStringLiteral("e "), Qt::CaseInsensitive, QRegExp::WildcardUnix);
            bool turn = false;
            for (auto _ : state) {
                turn = !turn;
                benchmark::DoNotOptimize(
                    countMatches(bench->nodeMap(), GenApi::Guru, turn ? longer : shorter));
                bench->constantTree().viewport()->repaint();
            }
        });
}

void compareExpanding(int size, const Bench& bench)
{
    const auto expand = [](QTreeView& tree) {
        return [&tree](benchmark::State& state) {
            for (auto _ : state) {
                state.PauseTiming();
                tree.collapseAll();
                BrowserBench::settle();
                state.ResumeTiming();
                tree.expandAll();
                BrowserBench::settle();
            }
        };
    };
    compare(withSize("expanding all until painted", size), 1.15, expand(bench->tree()),
            expand(bench->constantTree()));
}

void compareTick(int size, const Bench& bench)
{
    const auto features = bench->readableOnScreen();
    const auto tick = [bench] { QMetaObject::invokeMethod(&bench->pollingTimer(), "timeout"); };

    bench->countReads(true);
    tick();
    count(withSize("reads of a refresh tick, readable rows on screen", size), bench->takeReadCount(),
          static_cast<double>(features.size()), "reads");
    bench->countReads(false);

    compare(
        withSize("refresh tick", size), 4,
        [tick](benchmark::State& state) {
            for (auto _ : state)
                tick();
        },
        [features](benchmark::State& state) {
            for (auto _ : state) {
                for (GenApi::IValue* feature : features)
                    readValue(*feature);
            }
        });
}

} // namespace

void countOneWrite();

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));

    for (const int size : {100, 1000, 10000}) {
        const Bench bench = std::make_shared<BrowserBench>(size);
        compareBuilding(size, bench);
        countHeap(size, bench);
        compareTexts(size, bench);
        compareRepainting(size, bench);
        compareFiltering(size, size > 1000 ? 4 : 2.5, bench);
        compareExpanding(size, bench);
        compareTick(size, bench);
    }
    countOneWrite();
    return runComparisons(argc, argv);
}
