// The message catalogue and the monitor's settings file: any file text is
// read line by line; every key it holds is looked up with and without
// arguments (phrase references and numbered placeholders filled), and the
// settings read from it stay within their ranges.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "monitor/BaseRaidMonitor.h"
#include "monitor/NLSParser.h"

using vex::monitor::NLSParser;

namespace {

const std::string& scratchFile() {
    static const std::string path = [] {
        char name[] = "/tmp/vex-fuzz-catalogue-XXXXXX";
        const int fd = mkstemp(name);
        if (fd < 0) std::abort();
        close(fd);
        return std::string(name);
    }();
    return path;
}

void writeFile(const std::string& path, const std::string& text) {
    std::FILE* f = std::fopen(path.c_str(), "wb");
    if (f == nullptr) std::abort();
    std::fwrite(text.data(), 1, text.size(), f);
    std::fclose(f);
}

// The keys of the first lines: what stands before '=' (at most a few).
std::vector<std::string> keysOf(const std::string& text) {
    std::vector<std::string> keys;
    std::size_t start = 0;
    while (start < text.size() && keys.size() < 8) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        const std::size_t eq = text.find('=', start);
        if (eq != std::string::npos && eq < end) keys.push_back(NLSParser::trim(text.substr(start, eq - start)));
        start = end + 1;
    }
    return keys;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const std::string& path = scratchFile();
    writeFile(path, text);

    const std::vector<std::string> strings{"c0", "{1}", "%x%", ""};
    const std::vector<long> numbers{0, -1, 2147483647L};
    NLSParser parser(path);
    for (const std::string& key : keysOf(text)) {
        parser.get(key);
        parser.get(key, strings);
        parser.get(key, numbers);
    }
    NLSParser::parse(text, strings);

    const vex::monitor::MonitorSettings s = vex::monitor::readSettings(path);
    if (s.pollInterval < 1 || s.pollInterval > 3600) std::abort();
    return 0;
}
