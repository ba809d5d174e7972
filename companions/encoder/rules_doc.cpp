// Prints the rule list: as a document, or with --formats each message format on a line of its own.

#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "rules.h"

namespace
{

using namespace kv::encoder;

const char* nameOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    case Severity::Risk:
        return "risk";
    default:
        return "note";
    }
}

void printFormats()
{
    for (const RuleGroup& group : ruleGroups()) {
        for (const RuleInfo* rule : group.rules) {
            for (const char* const format : {rule->format, rule->viewFormat}) {
                if (format) {
                    std::printf("%s\n", format);
                }
            }
        }
    }
}

void replaceAll(std::string& text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

/// A message as a reader wants it: one text for all views, and no arguments of arguments.
std::string messageOf(const RuleInfo& rule)
{
    std::string message = rule.format;
    if (rule.viewFormat) {
        const std::string other = rule.viewFormat;
        const std::size_t same = other.find(' ', other.find("%d")) + 1;
        const std::string sentence = other.substr(same);
        message = message == sentence ? "[View %d:] " + sentence : "Base view/View %d: " + sentence;
    }
    replaceAll(message, "%d.%0*d", "%.2f");
    replaceAll(message, "%%", "%");
    return message;
}

void printDocument()
{
    std::puts(
        "# Rules of the settings check\n\n"
        "<!-- Written by kv_check_rules_doc; do not edit. -->\n\n"
        "What the reference encoder library `kv_mvcenc` holds a settings record against. An\n"
        "**error** refuses the settings. A **warning** tells what was corrected; checking the\n"
        "corrected record again changes nothing and repeats no warning. A **risk** warns, too, "
        "but\n"
        "corrects nothing and is told at every check: what looks like a slip, or is known to fail\n"
        "somewhere. Callers get it as a warning. A **note** tells what follows, or what is legal\n"
        "but worth knowing. The first note of settings that are accepted is the one of those "
        "under\n"
        "Headroom whose limit has the least room left, of the level or of the disc.\n\n"
        "What a user may be in the middle of changing is never corrected. Of more than two\n"
        "views the record holds the first two; the others count as the second does. A message in\n"
        "brackets begins with the view when it is about another one than the base view. `%.2f`\n"
        "stands for a number with two decimals or as many as it needs: `--formats` prints the\n"
        "formats as they are. Clauses are those of Rec. ITU-T H.264 (08/2021).");
    for (const RuleGroup& group : ruleGroups()) {
        std::printf("\n## %s\n\n| rule | kind | message | rests on |\n|---|---|---|---|\n",
                    group.title);
        for (const RuleInfo* rule : group.rules) {
            std::printf("| %s | %s | %s | %s |\n", rule->id, nameOf(rule->severity),
                        messageOf(*rule).c_str(), rule->basis);
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc == 2 && std::strcmp(argv[1], "--formats") == 0) {
        printFormats();
    } else if (argc == 1) {
        printDocument();
    } else {
        std::fputs("Usage: kv_check_rules_doc [--formats]\n", stderr);
        return 2;
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}
