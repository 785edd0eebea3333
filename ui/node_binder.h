#pragma once

#include "orba/module_object.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QAbstractSpinBox;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QSpinBox;

class FieldBinding;

/// Ties the fields of a form to the nodes below one root.
///
/// A field shows its node's value, follows it when it changes elsewhere, and writes it when the operator has
/// finished editing: spin boxes and line edits on `editingFinished`, combo boxes (by item data) on
/// `activated`, check boxes on `clicked`. A field that was only visited writes nothing, also when it cannot
/// show every digit of the node. A stored value outside of a spin box's range is shown as it is. A missing
/// key is made by the first write. Whole numbers stay integers where the node holds one.
///
/// A field whose node or root ends is cleared and disabled until its key exists again below the root. Fields
/// may be destroyed at any time. GUI thread only.
class PALX_API NodeBinder : public QObject
{
    Q_OBJECT

public:
    /// Returns the reason why a value must not be written, or an empty text.
    using Check = std::function<QString(const QString &path, const QVariant &value)>;

    explicit NodeBinder(QObject *parent = nullptr);
    ~NodeBinder() override;

    /// Ties a field to a path below the root; a field that is tied already is tied anew.
    void bind(QSpinBox *field, const QString &path);
    void bind(QDoubleSpinBox *field, const QString &path);
    void bind(QComboBox *field, const QString &path);
    void bind(QCheckBox *field, const QString &path);
    void bind(QLineEdit *field, const QString &path);

    /// Every field shows the values below another root; null or the empty node clears and disables them.
    void setRoot(orba::ModuleObject *root);
    orba::ModuleObject *root() const { return root_; }
    /// The one validator, asked before every write.
    void setCheck(Check check) { check_ = std::move(check); }
    /// Shows the nodes' values again, as after the entries of a combo box were replaced.
    void reload();
    QString path(const QWidget *field) const;

Q_SIGNALS:
    /// The operator's value was written.
    void edited(QWidget *field, const QString &path);
    /// The operator's value was not written; the field shows the node's value again.
    void refused(QWidget *field, const QString &reason);

private:
    friend class FieldBinding;
    void bindField(QWidget *field, const QString &path, std::function<void(const QVariant &)> show,
                   std::function<QVariant()> read);
    FieldBinding *bindingOf(const QWidget *field) const;

    QPointer<orba::ModuleObject> root_;
    QList<FieldBinding *> bindings_;
    Check check_;
};
