#include "kit/command_line.h"

#include <exception>

#include "kit/arguments.h"
#include "kit/kit_command.h"
#include "shell/ui.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;
constexpr int kStopped = 130;

int DrawSymbols(const std::filesystem::path& root, const Surroundings& around) {
    if (!around.MakeSymbols) {
        around.Err << "vendrel: this build has no fonts to draw symbols with; build it with Qt.\n";
        return kFailed;
    }
    const std::filesystem::path file = around.MakeSymbols(ProgramFolder(root, around.Shipped));
    around.Out << file.lexically_normal().string() << '\n';
    return kDone;
}

int OpenWindow(const std::filesystem::path& folder, const Surroundings& around) {
    if (around.OpenWindow) {
        return around.OpenWindow(folder);
    }
    around.Out << HelpText();
    return kDone;
}

int Run(const Arguments& arguments, const Surroundings& around) {
    switch (arguments.What) {
        case Command::Window:
            return OpenWindow(arguments.Folder, around);
        case Command::Kit:
            return RunKit(arguments.Kit, around) ? kDone : kFailed;
        case Command::Symbols:
            return DrawSymbols(arguments.Folder, around);
        case Command::Help:
            around.Out << HelpText();
            return kDone;
        case Command::KitHelp:
            around.Out << KitHelpText();
            return kDone;
        case Command::Version:
            around.Out << "Vendrel " << around.Version << '\n';
            return kDone;
    }
    return kWrongUsage;
}

}  // namespace

int RunCommandLine(std::span<const std::string_view> words, const Surroundings& around) {
    try {
        return Run(ParseArguments(words), around);
    } catch (const Stop&) {
        around.Err << "vendrel: stopped\n";
        return kStopped;
    } catch (const UsageError& error) {
        around.Err << "vendrel: " << error.what() << '\n';
        return kWrongUsage;
    } catch (const std::exception& error) {
        around.Err << "vendrel: " << error.what() << '\n';
        return kFailed;
    }
}

}  // namespace vendrel
