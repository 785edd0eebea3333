#pragma once

#include "orba/node.h"

#include <QString>
#include <QStringList>

#include <vector>

/// Recipes as an exchange file (XML): what is in the file, and what becomes of its recipes in a list that has recipes
/// already. No widgets, no handles: everything here may run on any thread on nodes that nobody else uses.
///
/// A list of recipes may have a child "default", the template stack; it is never one of the recipes.
namespace palx {

class Progress;

/// 500 products make about 1.3 MB.
constexpr qint64 kMostExchangeBytes = 256LL * 1024 * 1024;

/// The children of a list that are recipes, in their order.
PALX_API std::vector<int> recipeIndexes(const orba::Node &list);
/// The child of a list that is the first recipe of that name, to the letter; -1 when there is none.
PALX_API int recipeOfName(const orba::Node &list, const QString &name);
/// The template stack of a list: its own, or that of the plugin node `plugin`; null when there is none.
PALX_API const orba::Node *templateStackOf(const orba::Node &list, const orba::Node &plugin);

// ---------------------------------------------------------------- out

/// "temp_list": the template stack as "default", then a copy of every recipe that is ticked (one mark per recipe; a missing
/// mark is none).
PALX_API orba::Node makeTempList(const orba::Node &list, const orba::Node *templateStack,
                                 const std::vector<bool> &ticked);

struct PALX_API WrittenFile
{
    QString error; ///< what, where, why; the file of that name is then as it was
    bool isCancelled = false;
    bool isDone() const { return error.isEmpty() && !isCancelled; }
};
/// Writes under a temporary name beside the file, syncs and renames.
PALX_API WrittenFile writeExchangeFile(const orba::Node &tempList, const QString &file, Progress &progress);
/// The name with ".xml" behind it when it has no such suffix.
PALX_API QString exchangeFileName(const QString &name);

// ---------------------------------------------------------------- in

struct PALX_API ExchangeFile
{
    orba::Node content;             ///< the file's list; null when it was refused
    std::vector<QStringList> added; ///< for every recipe what it lacked and got from the template stack
    QString error;                  ///< what, where, why
    bool isCancelled = false;
};
/// Reads a file and brings its recipes up to the present layout: "get", "bollard", "pallet_position", "use_global_tool",
/// "use_global_wobj", "automatic_stacker" and "wobj_margin" come from the template stack where a recipe lacks them. A file
/// with any fault, a value of a wrong kind in a recipe included, is refused whole. The file is only read.
PALX_API ExchangeFile readExchangeFile(const QString &file, const orba::Node &templateStack,
                                       Progress &progress);

/// What to do with a recipe whose name is taken.
enum class RecipeClash { Rename, Replace, Discard };

/// The next name to try when one is taken: a number at the end is counted up ("Box9", "Box10"; zeros in front of it are
/// lost), a name without one gets 1. The number may be of any length.
PALX_API QString nextRecipeName(const QString &name);

/// What becomes of one recipe of a file.
struct PALX_API ImportStep
{
    enum Arrival {
        Unticked,
        New,
        Renamed,   ///< its name was taken
        Replacing, ///< a recipe of the list that had the name
        Skipped,   ///< its name was taken
        Overtaken, ///< a later recipe of the file with this name replaces it
    };
    Arrival arrival = Unticked;
    QString name;           ///< in the list; empty when it does not come
    int replaced = -1;      ///< child of the list that goes
    int replacedPlace = -1; ///< its place among the recipes of the list, from 0
    int sameAs =
        -1; ///< recipe of the file that has the name, for what is renamed, skipped or overtaken because of it
    int place = -1; ///< among the recipes of the list afterwards, from 0
    bool arrives() const { return arrival == New || arrival == Renamed || arrival == Replacing; }
};
/// What importing the ticked recipes of `content` into `list` will do, recipe by recipe in their order: a recipe is added at
/// the end; "Replace" removes the first of the list with that name. Names are compared to the letter; a missing
/// one is the empty name.
PALX_API std::vector<ImportStep> planImport(const orba::Node &list, const orba::Node &content,
                                            const std::vector<bool> &ticked, RecipeClash onClash);

} // namespace palx
