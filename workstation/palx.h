#pragma once

#include "bwaf/bmodule.h"
#include "orba/plugin_api.h"

/// The plug-in's module: binds the data tree, registers the navigator entry and makes the two pages.
class PALX_API Palx : public bwaf::BModule
{
    Q_OBJECT

public:
    explicit Palx(QObject *parent = nullptr);
    ~Palx() override;

    QString name() const override;
    void init() override;
    void setup() override;
};

namespace palx_workstation {

/// "2.0.<n>", n being the registered version number of the library less one.
PALX_API QString version();
/// The host's plug-in interface, as the library exports it by its C name.
PALX_API const orba::PluginApi *api();

} // namespace palx_workstation
