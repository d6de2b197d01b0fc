// classes: what the provider registers with an object manager, per class:
// namespaces and provider types, from the schema compiled in.
#include "BuiltinSchema.h"
#include "Commands.h"
#include "JsonText.h"
#include "TextTable.h"

namespace vexraid {

namespace {

using vex::mof::ProviderSchema;

std::vector<std::string> typeWords(const vex::mof::ProviderTypes& t) {
    std::vector<std::string> words;
    if (t.instance) words.push_back("instance");
    if (t.association) words.push_back("association");
    if (t.method) words.push_back("method");
    if (t.indication || t.lifecycle) words.push_back("indication");
    return words;
}

std::vector<std::string> namespaceWords(unsigned bits) {
    std::vector<std::string> words;
    if (bits & vex::mof::kInImplementation) words.push_back(vex::mof::kImplementationNamespace);
    if (bits & vex::mof::kInInterop) words.push_back(vex::mof::kInteropNamespace);
    return words;
}

std::string joined(const std::vector<std::string>& words) {
    std::string out;
    for (const std::string& w : words) out += (out.empty() ? "" : " ") + w;
    return out;
}

int listClasses(Printer& printer) {
    const ProviderSchema& schema = vex::mof::builtinSchema();
    nlohmann::json all = nlohmann::json::array();
    TextTable table({"CLASS", "SUPERCLASS", "TYPES", "NAMESPACES"}, 60);
    for (const vex::mof::ClassDecl& cls : schema.classes()) {
        const auto types = typeWords(schema.typesOf(cls));
        const auto spaces = namespaceWords(schema.namespacesOf(cls.name));
        all.push_back({{"class", cls.name}, {"superclass", cls.superClass}, {"types", types}, {"namespaces", spaces}});
        table.add({cls.name, cls.superClass, joined(types), joined(spaces)});
    }
    printer.out() << (printer.json() ? jsonText(all, true) + "\n" : table.render(0));
    return 0;
}

}  // namespace

void addClassesCommand(CLI::App& app, Cli& cli) {
    CLI::App* sub = app.add_subcommand("classes", "list the classes the provider registers (needs no provider)");
    sub->callback([&cli] { cli.localAction = listClasses; });
}

}  // namespace vexraid
