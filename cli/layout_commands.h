#pragma once

#include "pattern/rules/auto_layout.h"
#include "recipe_commands.h"

namespace cli {

/// The words for the placements, in their order.
const QStringList &placementWords();

/// What `layout` is asked.
struct LayoutRequest
{
    static constexpr int kBestKind = -1;
    palx::LayoutInput input;
    int kind = kBestKind; ///< kBestKind: the one with the most products that may become a pattern
    Output output = Output::Table;
};
/// Prints one automatic layout and the figures of all kinds. Returns the exit code.
int runLayout(const LayoutRequest &request);

/// What `template` is asked.
struct TemplateRequest
{
    orba::Node stack; ///< sizes and "pattern_cfg.template", as in a recipe
    int present = 0;  ///< items that the pattern holds already
    Output output = Output::Table;
};
/// Prints the items that a template adds to a pattern, or the refusal. Returns the exit code.
int runTemplate(const TemplateRequest &request);

} // namespace cli
