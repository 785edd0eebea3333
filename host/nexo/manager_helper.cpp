#include "nexo/manager_helper.h"

#include "ix/paths.h"
#include "nexo/setting_manager.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <cstdio>

namespace nexo {

namespace {

const char *const kLanguageKey = "language";

/// Without a presenter nobody can answer: what can be refused is refused, and every text is at least printed.
class ConsolePresenter : public MessagePresenter
{
public:
    bool ask(const Message &message) override
    {
        print(message.title, message.text);
        return message.rejectText.isEmpty();
    }
    void notify(const QString &level, const QString &text) override { print(level, text); }

private:
    static void print(const QString &head, const QString &text)
    {
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(head), qUtf8Printable(text));
    }
};

MessagePresenter *consolePresenter()
{
    static ConsolePresenter presenter;
    return &presenter;
}

QString knownLevel(const QString &level)
{
    static const QStringList known{QStringLiteral("error"), QStringLiteral("warning"),
                                   QStringLiteral("info")};
    return known.contains(level) ? level : QStringLiteral("info");
}

} // namespace

MessagePresenter::~MessagePresenter() = default;

ManagerHelper *ManagerHelper::instance()
{
    static auto *helper = new ManagerHelper; // leaked: used by objects that end after main
    return helper;
}

ManagerHelper::ManagerHelper()
{
    connect(SettingManager::instance(), &SettingManager::changed, this, [this](const QString &key) {
        if (key == QLatin1String(kLanguageKey))
            reloadTranslations();
    });
}

void ManagerHelper::registQrcAlias(const QString &alias)
{
    if (alias.isEmpty() || aliases_.contains(alias))
        return;
    aliases_.append(alias);
    loadTranslation(alias);
    Q_EMIT qrcAliasRegistered(alias);
}

/// Installing and removing a translator sends QEvent::LanguageChange to every window.
void ManagerHelper::loadTranslation(const QString &alias)
{
    delete translators_.take(alias); // a translator that ends removes itself from the application
    const QString language = SettingManager::instance()->getStr(QLatin1String(kLanguageKey));
    const QString file = ix::translationPath(alias, language);
    if (!QFile::exists(file)) // the texts in the sources are the English ones
        return;
    auto *translator = new QTranslator(this);
    if (translator->load(file) && QCoreApplication::installTranslator(translator)) {
        translators_.insert(alias, translator);
        return;
    }
    delete translator;
    throwLog(this, QStringLiteral("warning"), tr("The translation %1 cannot be read.").arg(file));
}

void ManagerHelper::reloadTranslations()
{
    for (const QString &alias : qAsConst(aliases_))
        loadTranslation(alias);
}

bool ManagerHelper::execMsgOk(const QString &title, const QString &text, const QString &rejectText)
{
    Message message{title, text, rejectText};
    if (rejectText.isEmpty())
        message.rejectText = tr("Cancel");
    else if (rejectText == QLatin1String("_"))
        message.rejectText.clear();
    return (presenter_ ? presenter_ : consolePresenter())->ask(message);
}

void ManagerHelper::throwLog(QObject *sender, const QString &level, const QString &text)
{
    (presenter_ ? presenter_ : consolePresenter())->notify(knownLevel(level), text);
    Q_EMIT noticeThrown(sender, knownLevel(level), text);
}

void ManagerHelper::setPresenter(MessagePresenter *presenter)
{
    presenter_ = presenter;
}

} // namespace nexo
