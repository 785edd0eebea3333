#pragma once

#include "orba/export.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

class QTranslator;

namespace nexo {

/// A message that waits for an answer.
struct PALX_API Message
{
    QString title;
    QString text;
    QString rejectText; ///< text of the refusing button; empty when only "OK" is offered
};

/// Where messages go: the panel shows dialogs, the command line prints, tests script the answers.
class PALX_API MessagePresenter
{
public:
    virtual ~MessagePresenter();
    /// Shows the message and waits; true for the accepting answer.
    virtual bool ask(const Message &message) = 0;
    /// Shows a passing notice; `level` is "error", "warning" or "info".
    virtual void notify(const QString &level, const QString &text) = 0;
};

/// The host's messages to the operator. GUI thread only.
class PALX_API ManagerHelper : public QObject
{
    Q_OBJECT

public:
    static ManagerHelper *instance();

    /// Makes ":/<alias>/" known: translations "language/<alias>_<lang>.qm" are loaded for the set language
    /// and followed when it changes.
    void registQrcAlias(const QString &alias);
    QStringList qrcAliases() const { return aliases_; }

    /// Modal message. `rejectText` "_" offers no refusal; empty offers "Cancel". True when accepted.
    bool execMsgOk(const QString &title, const QString &text, const QString &rejectText = QString());
    /// Passing notice; unknown levels count as "info".
    void throwLog(QObject *sender, const QString &level, const QString &text);

    /// The presenter is not owned and must outlive its use; null restores the default, which writes to
    /// standard error and refuses what can be refused.
    void setPresenter(MessagePresenter *presenter);

Q_SIGNALS:
    void qrcAliasRegistered(const QString &alias);
    /// A notice was thrown; whoever keeps a log takes it from here.
    void noticeThrown(QObject *sender, const QString &level, const QString &text);

private:
    ManagerHelper();
    void loadTranslation(const QString &alias);
    void reloadTranslations();
    QStringList aliases_;
    QHash<QString, QTranslator *> translators_; // by alias; children of this object
    MessagePresenter *presenter_ = nullptr;
};

} // namespace nexo
