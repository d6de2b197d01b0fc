// vexmofgen: checks the provider schema and writes the files an object
// manager needs: the class MOF of each namespace, sfcb's registration and
// OpenPegasus' registration instances.
//
//   vexmofgen --out DIR --version 1.5.0 --hierarchy hierarchy.txt
//             --registration registration.txt A.mof B.mof ...
#include <CLI/CLI.hpp>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "RegistrationWriters.h"

namespace {

namespace fs = std::filesystem;
using vex::mof::ProviderSchema;

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        throw std::runtime_error("cannot read " + path);
    }
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void writeFile(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
    if (!out) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

std::string fileName(const std::string& path) { return fs::path(path).filename().string(); }

void writeAll(const ProviderSchema& schema, const fs::path& out, const std::string& version) {
    using namespace vex::mof;
    const std::string name = kProviderName;
    writeFile(out / "mof" / (name + ".mof"), namespaceMof(schema, kImplementationNamespace));
    writeFile(out / "mof" / (name + "-interop.mof"), namespaceMof(schema, kInteropNamespace));
    writeFile(out / "sfcb" / (name + ".reg"), sfcbRegistration(schema));
    writeFile(out / "pegasus" / (name + "-registration.mof"), pegasusRegistration(schema, version));
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Checks the provider schema and writes its object-manager registration files."};
    std::string out, version, hierarchy, registration;
    std::vector<std::string> sources;
    app.add_option("--out", out, "output directory")->required();
    app.add_option("--version", version, "provider version")->required();
    app.add_option("--hierarchy", hierarchy, "DMTF superclass chains")->required()->check(CLI::ExistingFile);
    app.add_option("--registration", registration, "class placement")->required()->check(CLI::ExistingFile);
    app.add_option("sources", sources, "MOF files, in declaration order")->required()->check(CLI::ExistingFile);
    CLI11_PARSE(app, argc, argv);
    try {
        ProviderSchema schema;
        for (const std::string& source : sources) {
            schema.addMof(readFile(source), fileName(source));
        }
        schema.addChains(readFile(hierarchy), fileName(hierarchy));
        schema.addPlan(readFile(registration), fileName(registration));
        const std::vector<std::string> problems = schema.problems();
        for (const std::string& problem : problems) {
            std::cerr << "vexmofgen: " << problem << "\n";
        }
        if (!problems.empty()) {
            return 1;
        }
        writeAll(schema, out, version);
    } catch (const std::exception& e) {
        std::cerr << "vexmofgen: " << e.what() << "\n";
        return 1;
    }
    return 0;
}
