#pragma once

#include "featurewatch.h"
#include "zetocamconfigmapper.h"

#include <ZetoCameraApi.h>

#include <QDialog>

#include <memory>

namespace ZetoGui {

/// What the private objects of all feature dialogs share: a form that is built once, a camera whose features
/// are bound to it, the camera's own help as tool tips, a window of fixed size. A dialog adds its form, its
/// bindings and its rules:
///
/// \code
/// class TriggerPrivate : public FeatureDialogWithForm<Ui::Trigger>
/// {
///     void bindFeatures() override
///     {
///         mapper.MapEnum(findEnum("TriggerMode"), ui.checkBox);
///         connect(ui.checkBox, &QCheckBox::stateChanged, connections(), [this] { applyRules(); });
///         applyRules();
///     }
/// };
/// \endcode
///
/// Call SetDevice() in the constructor of the dialog, not of the private object.
class FeatureDialog : public QObject
{
public:
    explicit FeatureDialog(QDialog* dialog);
    /// The camera must still be open.
    ~FeatureDialog() override;

    /// Binds the features of \a device, or none. The former device must still be open.
    /// \return whether there is a device with parameters; without, the dialog is disabled
    bool SetDevice(ZetoCam::Device* device);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// Sets up the form, before the first device.
    virtual void buildForm() = 0;
    /// Binds the features of array, connects the dialog's rules and applies them once.
    virtual void bindFeatures() = 0;
    /// A feature that was given to watch() has changed. What is bound to it shows the change already.
    virtual void featureChanged(ZetoGenParam::Param* /*param*/) {}

    /// Has featureChanged() called for a feature, which may be null, until it is unbound.
    void watch(ZetoGenParam::Param* param) { m_watch.watch(param); }

    // The features of array by name and type, null for what the camera lacks.
    ZetoGenParam::Enum* findEnum(const char* name) const;
    ZetoGenParam::Int* findInt(const char* name) const;
    ZetoGenParam::Boolean* findBoolean(const char* name) const;
    ZetoGenParam::Command* findCommand(const char* name) const;

    /// The context of the dialog's own connections: they end with the binding, so that none is made twice.
    QObject* connections() const { return m_connections.get(); }

    QDialog* const dialog;
    ZetoCam::Device* device = nullptr;
    ZetoGenParam::Array* array = nullptr; ///< of the device, null without one
    ZetoCamConfigMapper mapper;

private:
    void build();
    void describe();
    void unbind();

    FeatureWatch m_watch;
    bool m_formBuilt = false;
    QVector<QPointer<QWidget>> m_described; ///< have the present camera's tool tips
    std::unique_ptr<QObject> m_connections;
};

/// A FeatureDialog whose widgets are those of the Designer form \a Form.
template <typename Form>
class FeatureDialogWithForm : public FeatureDialog
{
public:
    using FeatureDialog::FeatureDialog;

protected:
    void buildForm() override { ui.setupUi(dialog); }

    Form ui;
};

} // namespace ZetoGui
