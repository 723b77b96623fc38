#include "browserfixture.h"

#include "nodemapbuilder.h"

#include <QAbstractButton>
#include <QtTest>

#include <string>
#include <utility>

using ZetoNodeMap::NodeMap;
using ZetoNodeMap::NodeMapBuilder;

std::unique_ptr<NodeMap> makeCamera()
{
    NodeMapBuilder b;
    b.category("Root");
    b.category("DeviceControl").in("Root").displayName("Device Control");
    b.string("DeviceVendorName").in("DeviceControl").access(GenApi::RO).value("Vendor");
    b.floating("DeviceTemperature").in("DeviceControl").access(GenApi::RO).value(40.5).pollingTime(1000);
    b.category("AnalogControl").in("Root").displayName("Analog Control");
    b.integer("Gain").in("AnalogControl").value(3).description("Amplifies <b>all</b> pixels & more.");
    b.boolean("GainAuto").in("AnalogControl");
    b.category("LUT").in("AnalogControl");
    b.boolean("LUTEnable").in("LUT");
    b.category("Control").in("Root");
    b.integer("ControlWord").in("Control").visibility(GenApi::Expert);
    b.category("Transport").in("Root").visibility(GenApi::Expert);
    b.integer("PacketSize").in("Transport").visibility(GenApi::Expert).value(1500);
    b.category("Stream").in("Transport").visibility(GenApi::Expert);
    b.integer("StreamDelay").in("Stream").visibility(GenApi::Expert);
    return b.build();
}

std::unique_ptr<NodeMap> makeCamera(int features)
{
    NodeMapBuilder b;
    b.category("Root");
    for (int i = 0; i < features; ++i) {
        const std::string category = "Category" + std::to_string(i / 20);
        if (i % 20 == 0)
            b.category(category).in("Root");
        b.integer("Feature" + std::to_string(i)).in(category).value(i);
    }
    return b.build();
}

Browser::Browser(std::unique_ptr<NodeMap> nodeMap)
    : camera(std::move(nodeMap))
    , view(camera.get())
{
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));
}

void Browser::click(const char* button)
{
    child<QAbstractButton>(button).click();
}

QModelIndex Browser::row(const char* name, int column) const
{
    const QAbstractItemModel& model = *tree().model();
    const QModelIndexList found = model.match(model.index(0, 0), Qt::DisplayRole, QLatin1String(name), 1,
                                              Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex() : found.first().siblingAtColumn(column);
}

void Browser::select(const char* name, int column)
{
    tree().setFocus();
    tree().setCurrentIndex(row(name, column));
}

QString Browser::expanded() const
{
    const QAbstractItemModel& model = *tree().model();
    const QModelIndexList all = model.match(model.index(0, 0), Qt::DisplayRole, QStringLiteral("*"), -1,
                                            Qt::MatchWildcard | Qt::MatchRecursive);
    QStringList names;
    for (const QModelIndex& row : all)
        if (model.hasChildren(row) && tree().isExpanded(row))
            names.append(row.data().toString());
    return names.join(QLatin1Char(','));
}
