#include "ui/node_binder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaObject>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <cmath>
#include <utility>

using orba::ModuleObject;

/// One field and its node. `show` gets the node's value, invalid when there is none; `read` gives the
/// field's.
class FieldBinding : public QObject
{
public:
    FieldBinding(NodeBinder *binder, QWidget *field, QString path, std::function<void(const QVariant &)> show,
                 std::function<QVariant()> read)
        : QObject(binder), binder_(binder), field_(field), path_(std::move(path)), show_(std::move(show)),
          read_(std::move(read))
    {
        connect(field, &QObject::destroyed, this, [this] {
            binder_->bindings_.removeOne(this);
            deleteLater();
        });
    }

    const QWidget *field() const { return field_; }
    const QString &path() const { return path_; }
    void attach();
    void detach();
    void load();
    void commit();
    /// Tells of what was typed into a field of numbers and will be dropped when the field is left.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void watchForNode();
    void nodeEnded();
    void attachAgain();
    void write(const QVariant &value);
    QVariant inKindOfNode(const QVariant &value) const;

    NodeBinder *binder_;
    QPointer<QWidget> field_;
    QString path_;
    std::function<void(const QVariant &)> show_;
    std::function<QVariant()> read_;
    QPointer<ModuleObject> node_;
    QPointer<ModuleObject> watched_; ///< where the missing key would appear
    QVariant shown_; ///< what the field gave back after loading; only another value is an edit
};

void FieldBinding::detach()
{
    if (node_)
        node_->disconnect(this);
    if (watched_)
        watched_->disconnect(this);
    node_ = nullptr;
    watched_ = nullptr;
}

/// Finds the node below the binder's root and shows it. Without a node the key may still come, by the first
/// write or from elsewhere.
void FieldBinding::attach()
{
    detach();
    if (!field_)
        return;
    ModuleObject *root = binder_->root_;
    field_->setEnabled(root != nullptr);
    if (root && root->has(path_)) {
        node_ = root->r(path_);
        connect(node_, &ModuleObject::changed, this, [this] { load(); });
        connect(node_, &QObject::destroyed, this, [this] { nodeEnded(); });
    } else if (root) {
        watchForNode();
    }
    load();
}

/// Structure changes are told by the parent concerned: the nearest node on the way that exists.
void FieldBinding::watchForNode()
{
    QString above = path_;
    do {
        above.truncate(std::max(0, above.lastIndexOf(QLatin1Char('.'))));
    } while (!binder_->root_->has(above));
    watched_ = binder_->root_->r(above);
    connect(watched_, &ModuleObject::structureChanged, this, [this] { attach(); });
}

void FieldBinding::load()
{
    if (!field_)
        return;
    const QSignalBlocker quiet(field_);
    show_(node_ ? node_->value() : QVariant());
    shown_ = read_();
}

/// The tree is being taken apart right now; whether the root goes too is known a moment later.
void FieldBinding::nodeEnded()
{
    node_ = nullptr;
    load();
    if (field_)
        field_->setEnabled(false);
    QMetaObject::invokeMethod(
        this, [this] { attachAgain(); }, Qt::QueuedConnection);
}

void FieldBinding::attachAgain()
{
    if (node_ || !binder_->root_)
        return;
    attach();
    if (!node_ && field_)
        field_->setEnabled(false);
}

void FieldBinding::commit()
{
    const QVariant value = read_();
    if (!field_ || !binder_->root_ || value == shown_)
        return;
    const QString reason = binder_->check_ ? binder_->check_(path_, value) : QString();
    if (!reason.isEmpty()) {
        load();
        Q_EMIT binder_->refused(field_, reason);
        return;
    }
    write(value);
}

bool FieldBinding::eventFilter(QObject *, QEvent *event)
{
    const auto *spin = qobject_cast<QAbstractSpinBox *>(field_);
    const bool isLeft =
        event->type() == QEvent::FocusOut ||
        (event->type() == QEvent::KeyPress && (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Return ||
                                               static_cast<QKeyEvent *>(event)->key() == Qt::Key_Enter));
    if (isLeft && spin && binder_->root_ && !spin->hasAcceptableInput())
        Q_EMIT binder_->refused(
            field_, NodeBinder::tr("%1 to %2 can be entered. The value stays as it was.")
                        .arg(spin->property("minimum").toString(), spin->property("maximum").toString()));
    return false;
}

QVariant FieldBinding::inKindOfNode(const QVariant &value) const
{
    const auto kind = node_->node().kind();
    const bool number = value.userType() == QMetaType::Double;
    if (kind == orba::Node::Kind::Bool)
        return value.toBool();
    if (value.userType() == QMetaType::Bool && kind != orba::Node::Kind::Null)
        return qlonglong(value.toBool() ? 1 : 0);
    if (number && kind != orba::Node::Kind::Double && std::trunc(value.toDouble()) == value.toDouble())
        return value.toLongLong();
    return value;
}

void FieldBinding::write(const QVariant &value)
{
    const QPointer<FieldBinding> alive(this);
    if (!node_) {
        binder_->root_->ensure(path_);
        attach();
        if (!node_)
            return;
    }
    node_->set(nullptr, "", inKindOfNode(value));
    if (!alive || !field_)
        return;
    load();
    Q_EMIT binder_->edited(field_, path_);
}

NodeBinder::NodeBinder(QObject *parent) : QObject(parent) {}

NodeBinder::~NodeBinder() = default;

FieldBinding *NodeBinder::bindingOf(const QWidget *field) const
{
    for (FieldBinding *binding : bindings_) {
        if (binding->field() == field)
            return binding;
    }
    return nullptr;
}

QString NodeBinder::path(const QWidget *field) const
{
    const FieldBinding *binding = bindingOf(field);
    return binding ? binding->path() : QString();
}

void NodeBinder::bindField(QWidget *field, const QString &path, std::function<void(const QVariant &)> show,
                           std::function<QVariant()> read)
{
    if (FieldBinding *old = bindingOf(field)) {
        bindings_.removeOne(old);
        field->disconnect(old);
        delete old;
    }
    auto *binding = new FieldBinding(this, field, path, std::move(show), std::move(read));
    bindings_.append(binding);
    binding->attach();
}

namespace {

/// Widens the range for a stored value beyond it, so that what is shown is what is stored.
template <typename Spin, typename Value>
void showInSpin(Spin *spin, Value value, Value minimum, Value maximum)
{
    spin->setRange(std::min(minimum, value), std::max(maximum, value));
    spin->setValue(value);
}

} // namespace

void NodeBinder::bind(QSpinBox *field, const QString &path)
{
    const int minimum = field->minimum();
    const int maximum = field->maximum();
    const auto show = [=](const QVariant &value) { showInSpin(field, value.toInt(), minimum, maximum); };
    bindField(field, path, show, [field] { return QVariant(qlonglong(field->value())); });
    field->installEventFilter(bindingOf(field));
    connect(field, &QSpinBox::editingFinished, bindingOf(field), [=] { bindingOf(field)->commit(); });
}

void NodeBinder::bind(QDoubleSpinBox *field, const QString &path)
{
    const double minimum = field->minimum();
    const double maximum = field->maximum();
    const auto show = [=](const QVariant &value) { showInSpin(field, value.toDouble(), minimum, maximum); };
    bindField(field, path, show, [field] { return QVariant(field->value()); });
    field->installEventFilter(bindingOf(field));
    connect(field, &QDoubleSpinBox::editingFinished, bindingOf(field), [=] { bindingOf(field)->commit(); });
}

void NodeBinder::bind(QComboBox *field, const QString &path)
{
    const auto show = [field](const QVariant &value) {
        int index = field->findData(value);
        if (index < 0)
            index = field->findData(value.toString(), Qt::UserRole, Qt::MatchFixedString);
        field->setCurrentIndex(index);
    };
    bindField(field, path, show, [field] { return field->currentData(); });
    connect(field, QOverload<int>::of(&QComboBox::activated), bindingOf(field),
            [=] { bindingOf(field)->commit(); });
}

void NodeBinder::bind(QCheckBox *field, const QString &path)
{
    bindField(
        field, path, [field](const QVariant &value) { field->setChecked(value.toBool()); },
        [field] { return QVariant(field->isChecked()); });
    connect(field, &QCheckBox::clicked, bindingOf(field), [=] { bindingOf(field)->commit(); });
}

void NodeBinder::bind(QLineEdit *field, const QString &path)
{
    const auto show = [field](const QVariant &value) {
        field->setText(value.toString());
        field->setCursorPosition(0); // the beginning of a long text says more than its end
    };
    bindField(field, path, show, [field] { return QVariant(field->text()); });
    connect(field, &QLineEdit::editingFinished, bindingOf(field), [=] { bindingOf(field)->commit(); });
}

void NodeBinder::setRoot(ModuleObject *root)
{
    if (root && root->isEmptyMobj())
        root = nullptr;
    for (FieldBinding *binding : bindings_)
        binding->detach();
    if (root_)
        root_->disconnect(this);
    root_ = root;
    if (root_)
        connect(root_, &QObject::destroyed, this, [this] { setRoot(nullptr); });
    for (FieldBinding *binding : bindings_)
        binding->attach();
}

void NodeBinder::reload()
{
    for (FieldBinding *binding : bindings_)
        binding->load();
}
