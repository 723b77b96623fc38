#pragma once

#include "faultydevice.h"
#include "nodemap.h"
#include "nodemaparray.h"
#include "zetocamconfigmapper.h"

#include <QWidget>

#include <vector>

struct MappedKind;

/// A camera with a feature of each type that the mapper binds, seen through calls that can be made to fail.
class SmallCamera
{
public:
    SmallCamera();
    ~SmallCamera();

    ZetoNodeMap::NodeMap& features() { return *m_features; }
    FaultyArray& array() { return m_array; }
    ParamFaults& faults() { return m_faults; }

    /// Changes the feature of \a kind by itself; a command has nothing to change.
    void change(const MappedKind& kind);
    void change(const MappedKind& kind, int64_t value);

    /// Refuses every write.
    bool refuses = false;
    /// Takes a multiple of this for any value of Level.
    int64_t roundsTo = 1;

private:
    std::unique_ptr<ZetoNodeMap::NodeMap> makeFeatures();

    const std::unique_ptr<ZetoNodeMap::NodeMap> m_features;
    ZetoGenParam::NodeMapArray m_innerArray;
    ParamFaults m_faults;
    FaultyArray m_array;
};

/// A kind of binding: the widget it is for and what a person and the camera do with it.
struct MappedKind
{
    const char* name;
    const char* feature;
    QObject* (*make)(QWidget* parent); ///< a widget or a button group
    /// Binds the feature, or the lack of one of its type.
    bool (*map)(ZetoGui::ZetoCamConfigMapper& mapper, ZetoGenParam::Array& array, const char* feature,
                QObject* widget);
    QString (*shown)(const QObject* widget);
    void (*edit)(QObject* widget); ///< by hand
    const char* atFirst;           ///< what is shown
    const char* written;           ///< by the edit
    const char* afterEdit;         ///< what is shown
    int cameraValue;               ///< that the camera takes by itself
    const char* afterChange;       ///< what is shown
};

const std::vector<MappedKind>& mappedKinds();

/// Of a widget or of all buttons of a group.
bool isEnabled(const QObject* widget);
