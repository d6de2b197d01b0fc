// NLSParser: reads a key=value text file (the message catalogue
// "RaidNLS.properties", the monitor's settings "NRMConfig.conf") and fills
// the placeholders of its texts.
//
// Each look-up rescans the file from its start: look-ups are rare (one per
// event made) and the file may change under a running monitor. Lines longer
// than kMaxLine characters are skipped whole, so neither a huge file nor a
// binary one costs more than one line of memory. Not shared between threads.
#ifndef VEX_MONITOR_NLSPARSER_H
#define VEX_MONITOR_NLSPARSER_H

#include <cstdio>
#include <string>
#include <vector>

namespace vex::monitor {

class NLSParser {
public:
    static constexpr std::size_t kMaxLine = 8192;

    // Opens the file; a missing one is created empty first.
    explicit NLSParser(const std::string& path);
    ~NLSParser();
    NLSParser(const NLSParser&) = delete;
    NLSParser& operator=(const NLSParser&) = delete;

    // Closes the current file and opens another.
    void resetParser(const std::string& path);
    bool isOpen() const { return m_file != nullptr; }

    // The text of key with its phrase references (%name%) filled; "" when
    // the key is absent or the file cannot be read.
    std::string get(const std::string& key);
    // The same, then {n} placeholders filled with the arguments.
    std::string get(const std::string& key, const std::vector<std::string>& strings);
    std::string get(const std::string& key, const std::vector<long>& numbers);

    // Fills numbered placeholders: each "{" starts a three-character
    // placeholder whose decimal index picks the argument put in its place;
    // an index beyond the arguments only removes the placeholder.
    static std::string parse(std::string text, const std::vector<std::string>& strings);

    // Number to text in bases 2 to 16 (digits "0123456789abcdef"); a
    // negative value keeps its sign in base 10 only. "" for another base.
    static std::string itoa(int value, int base);
    static std::string ltoa(long value, int base);
    static std::string reverse(std::string text);
    static std::string trim(const std::string& text);

private:
    // The raw value of key (no phrase filling); false when absent.
    bool lookUp(const std::string& key, std::string& value);
    // Reads the next line of at most kMaxLine characters; false at the end.
    bool nextLine(std::string& line);
    std::string replacePhraseStrings(const std::string& text, int depth);
    void open();

    std::string m_path;
    std::FILE* m_file = nullptr;
};

}  // namespace vex::monitor

#endif
