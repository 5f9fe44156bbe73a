// Stands in for the `claude` command-line program, which cannot be installed here. It answers the
// way `claude --print --output-format json` is documented to (one result object on standard
// output) or fails the ways the real one does, as FAKE_CLAUDE_MODE asks, and records its
// arguments, standard input, working directory and NO_COLOR into FAKE_CLAUDE_RECORD.
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <unistd.h>

namespace {

std::string env(const char *name, const char *fallback = "")
{
    const char *value = std::getenv(name);
    return value ? value : fallback;
}

std::string quoted(const std::string &text)
{
    std::string out = "\"";
    for (const char c : text) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        default:
            out += c;
        }
    }
    return out + "\"";
}

std::string result(bool isError, const std::string &text, const std::string &extra = {})
{
    return std::string("{\"type\":\"result\",\"subtype\":\"") + (isError ? "error_during_execution" : "success") +
           "\",\"is_error\":" + (isError ? "true" : "false") +
           ",\"duration_ms\":2143,\"duration_api_ms\":1980,\"num_turns\":1,\"result\":" + quoted(text) +
           ",\"session_id\":\"0b9c5e7a-6f3d-4b1e-9a2c-5d8e7f6a1b2c\",\"total_cost_usd\":0.0123" + extra +
           ",\"usage\":{\"input_tokens\":812,\"output_tokens\":95}}\n";
}

void record(int argc, char **argv, const std::string &input)
{
    const std::string dir = env("FAKE_CLAUDE_RECORD");
    if (dir.empty()) {
        return;
    }
    std::ofstream args(dir + "/args", std::ios::binary);
    for (int i = 1; i < argc; ++i) {
        args << argv[i] << '\0';
    }
    std::ofstream(dir + "/stdin", std::ios::binary) << input;
    char cwd[4096] = {};
    std::ofstream(dir + "/cwd", std::ios::binary) << (getcwd(cwd, sizeof cwd) ? cwd : "");
    std::ofstream(dir + "/no_color", std::ios::binary) << env("NO_COLOR", "unset");
    std::ofstream(dir + "/pid", std::ios::binary) << getpid();
}

} // namespace

int main(int argc, char **argv)
{
    const std::string mode = env("FAKE_CLAUDE_MODE", "result");
    const std::string text = env("FAKE_CLAUDE_TEXT", "Hello from Claude");
    if (mode == "sleep" || mode == "stubborn") {
        record(argc, argv, {});
        if (mode == "stubborn") {
            std::signal(SIGTERM, SIG_IGN);
        }
        for (int i = 0; i < 60; ++i) {
            sleep(1);
        }
        std::cout << result(false, "too late");
        return 0;
    }
    const std::string input((std::istreambuf_iterator<char>(std::cin)), std::istreambuf_iterator<char>());
    record(argc, argv, input);

    if (mode == "result") {
        std::cout << result(false, text);
    } else if (mode == "response") {
        std::cout << "{\"type\":\"result\",\"is_error\":false,\"response\":" << quoted(text) << "}\n";
    } else if (mode == "structured") {
        std::cout << result(false, "",
                            ",\"structured_output\":{\"intent\":\"create_task\",\"project\":\"Webshop\","
                            "\"minutes\":null}");
    } else if (mode == "prose") {
        std::cout << result(false, "Sure, here it is:\n```json\n{\"intent\": \"log_time\", \"minutes\": 90, "
                                   "\"note\": \"a } inside a string\"}\n```\nLet me know if {that} helps.");
    } else if (mode == "noobject") {
        std::cout << result(false, "I could not work out what to do with that {sorry}.");
    } else if (mode == "error") {
        std::cout << result(true, "Credit balance is too low");
    } else if (mode == "empty") {
        // Nothing at all.
    } else if (mode == "fail") {
        std::cout << result(true, "API Error: 529 Overloaded");
        std::cerr << "Error: the API is overloaded, try again later\n";
        return 2;
    } else if (mode == "notjson") {
        std::cout << "Welcome to Claude Code! Run claude --help for usage.\n";
    } else if (mode == "array") {
        std::cout << "[" << result(false, text) << "]\n";
    } else if (mode == "write") {
        std::ofstream(env("FAKE_CLAUDE_OUTPUT")) << "<!doctype html><html><body>Invoice</body></html>\n";
        std::cout << "I wrote " << env("FAKE_CLAUDE_OUTPUT") << ".\n";
    } else if (mode == "nowrite") {
        std::cout << "Here is the template:\n<!doctype html><html><body>Inline</body></html>\n";
    }
    return 0;
}
