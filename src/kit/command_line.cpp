#include "kit/command_line.h"

#include <exception>

#include "kit/arguments.h"
#include "kit/help.h"
#include "kit/kit_command.h"
#include "kit/printable.h"
#include "kit/shelf_commands.h"
#include "kitfile/kit_places.h"
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
    const MadeSymbols made = around.MakeSymbols(ProgramFolder(root, around.Shipped));
    if (!made.Note.empty()) {
        around.Err << "vendrel: " << made.Note << '\n';
    }
    around.Out << Printable(made.File.lexically_normal().string()) << '\n';
    return kDone;
}

// A kit is opened where it belongs, from wherever a file manager starts the program.
std::filesystem::path WindowFolder(const Arguments& arguments, const Surroundings& around) {
    const bool named = arguments.Folder != ".";
    if (!named && IsKitName(arguments.File)) {
        if (auto own = FolderOfKit(arguments.File); !own.empty()) {
            return own;
        }
    }
    return arguments.InDocuments ? around.Documents() : arguments.Folder;
}

int OpenWindow(const Arguments& arguments, const Surroundings& around) {
    if (around.OpenWindow) {
        return around.OpenWindow(WindowFolder(arguments, around), arguments.File);
    }
    around.Out << HelpText();
    return kDone;
}

int Run(const Arguments& arguments, const Surroundings& around) {
    switch (arguments.What) {
        case Command::Window:
            return OpenWindow(arguments, around);
        case Command::Kit:
            return RunKit(arguments.Kit, around) ? kDone : kFailed;
        case Command::Symbols:
            return DrawSymbols(arguments.Folder, around);
        case Command::Paints:
            RunPaints(arguments.Paints, around);
            return kDone;
        case Command::Shop:
            RunShop(arguments.Shop, around);
            return kDone;
        case Command::PaintsHelp:
            around.Out << PaintsHelpText();
            return kDone;
        case Command::ShopHelp:
            around.Out << ShopHelpText();
            return kDone;
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

// Whoever reads the answer must not take half of it for the whole.
void RequireTold(const Surroundings& around) {
    if (!around.Out.flush()) {
        throw Error(
            "What there is to say cannot be written to the standard output. Check where it goes; "
            "the files named so far are made.");
    }
}

void Complain(const Surroundings& around, const std::exception& failure) {
    around.Err << "vendrel: " << Printable(SentenceOf(failure)) << '\n';
}

}  // namespace

void RequireGoingOn(const Surroundings& around) {
    if (around.StopAsked != nullptr && around.StopAsked->load(std::memory_order_relaxed)) {
        throw Stop{};
    }
}

int RunToTheEdge(const Surroundings& around, const std::function<int()>& command) {
    try {
        const int status = command();
        RequireTold(around);
        return status;
    } catch (const Stop&) {
        around.Err << "vendrel: stopped\n";
        return kStopped;
    } catch (const UsageError& error) {
        Complain(around, error);
        return kWrongUsage;
    } catch (const std::exception& error) {
        Complain(around, error);
        return kFailed;
    }
}

int RunCommandLine(std::span<const std::string_view> words, const Surroundings& around) {
    return RunToTheEdge(around, [&] { return Run(ParseArguments(words), around); });
}

}  // namespace vendrel
