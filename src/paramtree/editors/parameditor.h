#pragma once

#include <QModelIndex>
#include <QVariant>

/// What the delegate asks of an editor that the model has prepared. The editor knows its feature only through
/// what it was prepared with and through the roles of the index that it is filled from.
class ParamEditor
{
public:
    ParamEditor() = default;
    virtual ~ParamEditor() = default;
    Q_DISABLE_COPY(ParamEditor)

    /// Takes over limits and choices from \a fresh, which the model has prepared anew for the same feature.
    /// An editor of another kind is passed over. To be filled afterwards.
    virtual void adopt(const ParamEditor& fresh) { static_cast<void>(fresh); }

    /// Shows what the model holds for the feature.
    virtual void fill(const QModelIndex& index) = 0;

    /// Whether the person has begun something that fill() would destroy.
    virtual bool isBeingEdited() const = 0;

    /// The value that the person has entered since it was last asked for, as the model's setData() takes it;
    /// invalid when there is none. Leaving an editor alone must not write to the camera.
    virtual QVariant takeEdit() = 0;

    /// What is wrong with the text as it stands, to be told when the person confirms it; null for nothing.
    virtual QString complaint() const { return QString(); }
};
