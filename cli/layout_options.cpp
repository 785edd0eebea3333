#include "layout_options.h"

#include "layout_commands.h"
#include "pattern/rules/pattern_template.h"
#include "place_options.h"
#include "stack/recipe_fields.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace cli {
namespace {

/// Two lengths "200x150.5".
struct Pair
{
    double first = 0, second = 0;
    bool isSet = false;
};

Pair pairOf(const std::string &text)
{
    const QStringList parts = QString::fromStdString(text).split(QLatin1Char('x'));
    Pair pair;
    bool isFirst = false;
    bool isSecond = false;
    pair.first = parts.value(0).toDouble(&isFirst);
    pair.second = parts.value(1).toDouble(&isSecond);
    pair.isSet = parts.size() == 2 && isFirst && isSecond;
    return pair;
}

const palx::FieldSpec &field(const QString &path)
{
    return *palx::fieldSpec(path);
}

/// Two lengths in millimetres within what the field of that path takes.
void addPair(CLI::App *command, const char *name, std::string *target, const char *help, const QString &path,
             bool required)
{
    const palx::FieldSpec &spec = field(path);
    const auto check = [&spec](const std::string &text) -> std::string {
        const Pair pair = pairOf(text);
        const auto isWithin = [&spec](double length) { // false for what is no number
            return length >= spec.minimum && length <= spec.maximum;
        };
        const bool usable = pair.isSet && isWithin(pair.first) && isWithin(pair.second);
        return usable ? std::string()
                      : QStringLiteral("two lengths AxB in mm, %1 to %2 each, are expected")
                            .arg(spec.minimum)
                            .arg(spec.maximum)
                            .toStdString();
    };
    command->add_option(name, *target, help)->check(check)->required(required);
}

void addSizes(CLI::App *command, std::string *product, std::string *pallet)
{
    addPair(command, "--product", product, "LENGTHxWIDTH of the product in mm",
            QStringLiteral("product_cfg.product.length"), true);
    addPair(command, "--pallet", pallet, "LENGTHxWIDTH of the pallet in mm",
            QStringLiteral("product_cfg.pallet.length"), true);
}

template <typename Number>
CLI::Option *addNumber(CLI::App *command, const char *name, Number *target, const char *help,
                       const QString &path)
{
    const palx::FieldSpec &spec = field(path);
    return command->add_option(name, *target, help)
        ->check(CLI::Range(Number(spec.minimum), Number(spec.maximum)))
        ->capture_default_str();
}

struct LayoutArguments
{
    std::string product, pallet, margins = "0x0", placement = "plain", format;
    LayoutRequest request;
};

LayoutRequest layoutRequest(const LayoutArguments &arguments)
{
    LayoutRequest request = arguments.request;
    const Pair product = pairOf(arguments.product);
    const Pair pallet = pairOf(arguments.pallet);
    const Pair margins = pairOf(arguments.margins);
    request.input.length = product.first;
    request.input.width = product.second;
    request.input.palletLength = pallet.first;
    request.input.palletWidth = pallet.second;
    request.input.topBottomMargin = margins.first;
    request.input.leftRightMargin = margins.second;
    request.input.placement =
        static_cast<palx::Placement>(placementWords().indexOf(QString::fromStdString(arguments.placement)));
    request.output = outputOf(arguments.format);
    return request;
}

void addLayout(CLI::App &app, std::function<int()> *command)
{
    CLI::App *layout = app.add_subcommand("layout", "lay a layer automatically");
    auto arguments = std::make_shared<LayoutArguments>();
    arguments->request.input.spacing = 1; // as a new recipe has it
    addSizes(layout, &arguments->product, &arguments->pallet);
    layout
        ->add_option("--kind", arguments->request.kind,
                     "0 matrix (vertical), 1 matrix (horizontal), 2 crisscross, 3 back letterform; "
                     "otherwise the one with the most products")
        ->check(CLI::Range(0, palx::kLayoutKinds - 1));
    addNumber(layout, "--spacing", &arguments->request.input.spacing, "between products, in mm",
              QStringLiteral("automatic_stacker.min_product_spacing"));
    addPair(layout, "--margins", &arguments->margins, "TOPBOTTOMxLEFTRIGHT in mm; 0x0 unless given",
            QStringLiteral("automatic_stacker.top_bottom_margin"), false);
    addNumber(layout, "--orient", &arguments->request.input.orient, "code of every product",
              QStringLiteral("product_cfg.product.orient"));
    layout
        ->add_option("--placement", arguments->placement,
                     "plain, or left or right with shared work objects calibrated by one point")
        ->check(CLI::IsMember({"plain", "left", "right"}))
        ->capture_default_str();
    addFormat(layout, &arguments->format);
    layout->callback([arguments, command] {
        *command = [request = layoutRequest(*arguments)] { return runLayout(request); };
    });
}

struct TemplateArguments
{
    std::string type, product, pallet, format;
    int orient = 0, present = 0;
    palx::TemplateNumbers numbers;
};

TemplateRequest templateRequest(const TemplateArguments &arguments)
{
    TemplateRequest request;
    const Pair product = pairOf(arguments.product);
    const Pair pallet = pairOf(arguments.pallet);
    orba::Node &stack = request.stack;
    stack.ensure(u"product_cfg.product.length")->setDouble(product.first);
    stack.ensure(u"product_cfg.product.width")->setDouble(product.second);
    stack.ensure(u"product_cfg.product.orient")->setInt(arguments.orient);
    stack.ensure(u"product_cfg.pallet.length")->setDouble(pallet.first);
    stack.ensure(u"product_cfg.pallet.width")->setDouble(pallet.second);
    stack.ensure(palx::templatePath("type"))->setString(QString::fromStdString(arguments.type));
    for (const palx::TemplateField &number : palx::templateFields())
        stack.ensure(palx::templatePath(number.key))->setInt(arguments.numbers.*number.number);
    request.present = arguments.present;
    request.output = outputOf(arguments.format);
    return request;
}

void addTemplate(CLI::App &app, std::function<int()> *command)
{
    CLI::App *layer = app.add_subcommand("template", "make a pattern from a template");
    auto arguments = std::make_shared<TemplateArguments>();
    arguments->numbers.spaceX = 1; // as a new recipe has them
    arguments->numbers.spaceY = 1;
    layer->add_option("--type", arguments->type, "overlap, cross or clip")
        ->check(CLI::IsMember({"overlap", "cross", "clip"}))
        ->required();
    addSizes(layer, &arguments->product, &arguments->pallet);
    addNumber(layer, "--orient", &arguments->orient, "code of every product",
              QStringLiteral("product_cfg.product.orient"));
    layer->add_option("--present", arguments->present, "products that the pattern holds already")
        ->check(CLI::NonNegativeNumber)
        ->capture_default_str();
    for (const palx::TemplateField &number : palx::templateFields()) {
        const QString option = QStringLiteral("--") +
                               QString::fromLatin1(number.key).replace(QLatin1Char('_'), QLatin1Char('-'));
        const bool isCount = option.startsWith(QLatin1String("--num"));
        addNumber(layer, option.toLatin1().constData(), &(arguments->numbers.*number.number),
                  isCount ? "rows along X, or products in a row" : "in mm", palx::templatePath(number.key));
    }
    addFormat(layer, &arguments->format);
    layer->callback([arguments, command] {
        *command = [request = templateRequest(*arguments)] { return runTemplate(request); };
    });
}

} // namespace

void addLayoutCommands(CLI::App &app, std::function<int()> *command)
{
    addLayout(app, command);
    addTemplate(app, command);
}

} // namespace cli
