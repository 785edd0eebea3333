#include "shell/plugin_loader.h"

#include "bwaf/bmodule.h"
#include "shell/library_file.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>

namespace host {

namespace {

const char *const kEntry = "orba_plugin_api";

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(host::PluginLoader)
};

/// Null and a reason unless the library tells a usable description of itself.
const orba::PluginApi *describe(QLibrary &library, QString *why)
{
    using Entry = const orba::PluginApi *(*)();
    const auto entry = reinterpret_cast<Entry>(library.resolve(kEntry));
    if (!entry) {
        *why =
            Text::tr("it has no entry \"%1\", so it is no plug-in of this panel").arg(QLatin1String(kEntry));
        return nullptr;
    }
    const orba::PluginApi *api = entry();
    if (!api)
        *why = Text::tr("its entry \"%1\" tells nothing").arg(QLatin1String(kEntry));
    else if (api->abi != orba::kPluginAbi)
        *why = Text::tr("it was built for interface %1 of the framework, this panel has interface %2")
                   .arg(api->abi)
                   .arg(orba::kPluginAbi);
    else if (!api->name || !*api->name)
        *why = Text::tr("it tells no name");
    return why->isEmpty() ? api : nullptr;
}

const orba::PluginApi *loadLibrary(const QString &file, QString *why)
{
    const QFileInfo info(file);
    if (!info.isFile()) {
        *why = Text::tr("there is no such file");
        return nullptr;
    }
    *why = libraryFault(file);
    if (!why->isEmpty())
        return nullptr;
    QLibrary library(info.absoluteFilePath());
    // Never unloaded: texts and functions of the library stay in use until the process ends. All symbols are
    // resolved now, so that a missing one is told here and does not end the panel in the middle of a shift.
    library.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    if (library.load())
        return describe(library, why);
    *why = library.errorString();
    return nullptr;
}

} // namespace

bool isRegistered(const QString &name, QString *why)
{
    if (!bfactory().contains(name))
        *why = Text::tr("it has registered no module under the name \"%1\"").arg(name);
    else if (!orba::pluginManager().contains(name))
        *why = Text::tr("it has registered no version under the name \"%1\"").arg(name);
    return why->isEmpty();
}

const orba::PluginApi *loadPlugin(const QString &file, Problem *problem)
{
    QString why;
    const orba::PluginApi *api = loadLibrary(file, &why);
    if (api && isRegistered(QString::fromUtf8(api->name), &why))
        return api;
    *problem = {Text::tr("The plug-in cannot be loaded"), file, why};
    return nullptr;
}

} // namespace host
