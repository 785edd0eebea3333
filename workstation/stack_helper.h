#pragma once

// The free functions of this room in one include.
#include "ui/move_to_point.h"
#include "workstation/config_log.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"
#include "workstation/point_editor.h"
#include "workstation/unique_widget.h"
