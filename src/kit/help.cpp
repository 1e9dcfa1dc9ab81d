#include "kit/help.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "kit/kit_options.h"
#include "kit/shelf_options.h"

namespace vendrel {
namespace {

constexpr std::string_view kHelp =
    R"(Vendrel turns a photograph into a paint-by-symbol kit.

  vendrel [--folder DIR] opens the window
  vendrel --documents    opens it in the folder Vendrel of your documents
  vendrel FILE           opens a kit or a photo in it
  vendrel kit PHOTO...   makes kits; "vendrel kit --help" lists the settings
  vendrel batch ORDERS   makes the kits of a list of orders or of a folder;
                         "vendrel batch --help" says how
  vendrel paints         lists paints, your own and a kit's missing ones, and
                         imports yours; "vendrel paints --help" says how
  vendrel shop KIT...    lists what kits ask you to buy; "vendrel shop --help"
  vendrel symbols [--folder DIR]
                         draws the symbols anew into Data/Symbols.txt
  vendrel --help         shows this text
  vendrel --version      shows the version

Try: vendrel kit PBNLady.bmp
)";

constexpr const char* kKitHead =
    R"(vendrel kit PHOTO... makes a paint-by-symbol kit of each photo.

PHOTO is a path to a photo or the name of one in Pictures. JPEG, PNG, WebP, TIFF
and GIF photos are kept in Pictures as .bmp (not in builds without windows).
A kit file, as in beach.kit, is made again byte for byte; with other settings it
becomes another kit, which needs a --title.
)";

constexpr const char* kKitFoot =
    R"(Without --sets and --template the paints are those of Data/paintlist.txt.
Pictures and pdf files go to Results, grids to "Saved Stipples"; the list of a
kit in Results has their SHA-256 sums.)";

constexpr const char* kPaintsHead =
    R"(vendrel paints lists all paints, with the labels of those that you own.
)";

constexpr const char* kShopHead =
    R"(vendrel shop KIT... lists the paints that kit files need beyond what you own.
)";

// The head, the options in two columns, the foot.
class CommandHelp : public CLI::Formatter {
  public:
    CommandHelp() { column_width(kDescriptionColumn); }

    std::string make_help(const CLI::App* app, std::string /*name*/,
                          CLI::AppFormatMode /*mode*/) const override {
        std::string text = app->get_description() + "\n";
        for (const CLI::Option* option :
             app->get_options([](const CLI::Option* o) { return !o->get_description().empty(); })) {
            text += make_option(option, false);
        }
        return text + "\n" + make_footer(app);
    }

  private:
    static constexpr std::size_t kDescriptionColumn = 29;
};

template <typename Options>
std::string HelpOf(const char* head, const char* foot, void (*add)(CLI::App&, Options&)) {
    Options options;
    CLI::App app(head);
    app.set_help_flag();  // not listed
    app.footer(foot);
    app.formatter(std::make_shared<CommandHelp>());
    add(app, options);
    return app.help();
}

}  // namespace

std::string_view HelpText() {
    return kHelp;
}

std::string KitHelpText() {
    return HelpOf(kKitHead, kKitFoot, AddKitOptions);
}

std::string PaintsHelpText() {
    return HelpOf(kPaintsHead,
                  "Your paints are kept in Data/mypaints.csv, other catalogues in Data/catalogues.",
                  AddPaintsOptions);
}

std::string ShopHelpText() {
    return HelpOf(kShopHead, "Paints of yours whose amount nobody measured are taken to be enough.",
                  AddShopOptions);
}

}  // namespace vendrel
