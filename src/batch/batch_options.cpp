#include "batch/batch_options.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "batch/order_columns.h"
#include "kit/arguments.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr std::string_view kHelp =
    R"(vendrel batch ORDERS makes the kits of a list of orders, or of a folder of photos,
each in a folder of its own, Orders/<order>.

ORDERS is a table as spreadsheets write it (.csv). Its first row names the columns,
in any order; only photo must be there: order, photo, title, canvas, difficulty,
final paints, sets (between |), template, match, fit, paintable, smallest spot,
narrowest, detail, symbols, lines, outputs, paper, bleed, pot, maker, address, accent,
logo, leaflet, note. Photos, logos and leaflets are looked for beside the list. All
rows are checked before the first kit. Pages carry the order, and leaflets may name
any column, as in {customer}.

  --jobs N         so many kits side by side (as many as processors and memory allow)
  --names PATTERN  names the kits, as in "{order} {title} {difficulty}"; {customer} is
                   what the column customer has
  --print-run FILE joins the PDFs of all orders into one, in the list's order
  --dry-run        says what would be made
  --retry-failed   tries orders again that failed as they are
  --verify         looks whether the files are what was written
  --remake-check   makes every kit anew and compares
  --shard K/N      makes every N-th order from the K-th on, with a manifest of its own
  --merge          makes one manifest of those of the shards
  --folder DIR     works in DIR instead of the folder it is started in
  --json           prints one JSON object per order
  --quiet          prints nothing but errors

All settings of "vendrel kit" hold for every order; a row goes before them.
Orders/batch.jsonl has a line for each order that was made or failed. Run again, only
what is missing or has changed is made. Orders/paints.csv has the paints to buy for all
of them.
)";

class BatchWords {
  public:
    explicit BatchWords(std::span<const std::string_view> words) : rest_(words) {}

    BatchOptions Read() {
        while (!rest_.empty()) {
            const std::string_view word = Next();
            if (!TakeSwitch(word) && !TakeValue(word)) {
                options_.Words.emplace_back(word);
            }
        }
        if (options_.Task != BatchTask::Help) {
            TakeKitWords();
        }
        return std::move(options_);
    }

  private:
    std::string_view Next() {
        const std::string_view word = rest_.front();
        rest_ = rest_.subspan(1);
        return word;
    }

    void Choose(BatchTask task) {
        if (options_.Task != BatchTask::Make && options_.Task != task) {
            throw UsageError(
                "Choose one of --dry-run, --verify, --remake-check and --merge, not several.");
        }
        options_.Task = task;
    }

    bool TakeSwitch(std::string_view word) {
        struct Task {
            std::string_view Word;
            BatchTask Meaning;
        };
        constexpr auto kTasks = std::to_array<Task>({{"--dry-run", BatchTask::DryRun},
                                                     {"--verify", BatchTask::Verify},
                                                     {"--remake-check", BatchTask::RemakeCheck},
                                                     {"--merge", BatchTask::Merge}});
        if (word == "--help" || word == "-h") {
            options_.Task = BatchTask::Help;
            rest_ = {};
            return true;
        }
        if (const auto task = std::ranges::find(kTasks, word, &Task::Word); task != kTasks.end()) {
            Choose(task->Meaning);
            return true;
        }
        options_.RetryFailed = options_.RetryFailed || word == "--retry-failed";
        return word == "--retry-failed";
    }

    bool TakeValue(std::string_view word) {
        const std::string_view name = word.substr(0, word.find('='));
        const auto taken = std::ranges::find(kValues, name, &Value::Word);
        if (taken == kValues.end()) {
            return false;
        }
        if (name == word && rest_.empty()) {
            throw UsageError(std::string(name) + " needs a value behind it.");
        }
        const std::string_view value = name == word ? Next() : word.substr(name.size() + 1);
        if (value.empty()) {
            throw UsageError(std::string(name) + " needs a value that is not empty.");
        }
        (this->*taken->Take)(value);
        return true;
    }

    void TakeNames(std::string_view value) { options_.Names = value; }
    void TakePrintRun(std::string_view value) { options_.PrintRun = value; }

    static int NumberIn(std::string_view text, int most) {
        int number = 0;
        const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
        const bool whole = failure == std::errc() && end == text.data() + text.size();
        return whole && number >= 1 && number <= most ? number : 0;
    }

    void TakeJobs(std::string_view value) {
        constexpr int kMostJobs = 256;
        options_.Jobs = NumberIn(value, kMostJobs);
        if (options_.Jobs == 0) {
            throw UsageError("--jobs cannot be \"" + std::string(value) +
                             "\"; choose a number from 1 to 256.");
        }
    }

    void TakeShard(std::string_view value) {
        constexpr int kMostShards = 10000;
        const std::size_t slash = std::min(value.find('/'), value.size());
        const int of = slash < value.size() ? NumberIn(value.substr(slash + 1), kMostShards) : 0;
        const int number = NumberIn(value.substr(0, slash), of);
        if (number == 0) {
            throw UsageError("--shard cannot be \"" + std::string(value) +
                             "\"; choose K/N with K from 1 to N, as in 2/10.");
        }
        options_.Part = Shard{number, of};
    }

    // What is left reads as the words of `vendrel kit`, the list in place of the photo.
    void TakeKitWords() {
        std::vector<std::string_view> words = {"kit"};
        words.insert(words.end(), options_.Words.begin(), options_.Words.end());
        words.emplace_back("-");  // the parser wants one photo at least
        const KitOptions kit = ParseArguments(words).Kit;
        const std::size_t lists = kit.Photos.size() - 1;
        if (lists > 1) {
            throw UsageError("Name one list of orders or one folder, not several.");
        }
        if (lists == 0 && options_.Task != BatchTask::Merge) {
            throw UsageError(
                "Name a list of orders or a folder of photos, as in \"vendrel batch orders.csv\".");
        }
        if (!kit.Title.empty()) {
            throw UsageError("--title names one kit. Put a column title into the list.");
        }
        if (!kit.Plan.Shop.Order.empty()) {
            throw UsageError("--order is one kit's. Put a column order into the list.");
        }
        if (kit.FromGrid || !kit.KitPhoto.empty()) {
            throw UsageError("--from-grid and --photo are for one kit, not for a batch.");
        }
        options_.Orders = lists == 1 ? kit.Photos.front() : "";
        options_.Folder = kit.Folder;
        options_.Quiet = kit.Quiet;
        options_.Json = kit.Json;
        options_.Words = kit.SettingWords;
        // What is said meanwhile, and where, makes no kit another one.
        for (const char* own : {"--quiet", "--json", "--folder"}) {
            options_.Words = WithoutOption(options_.Words, own);
        }
    }

    struct Value {
        std::string_view Word;
        void (BatchWords::*Take)(std::string_view);
    };
    static constexpr auto kValues =
        std::to_array<Value>({{"--jobs", &BatchWords::TakeJobs},
                              {"--shard", &BatchWords::TakeShard},
                              {"--names", &BatchWords::TakeNames},
                              {"--print-run", &BatchWords::TakePrintRun}});

    std::span<const std::string_view> rest_;
    BatchOptions options_;
};

}  // namespace

BatchOptions ParseBatch(std::span<const std::string_view> words) {
    return BatchWords(words).Read();
}

std::string_view BatchHelpText() {
    return kHelp;
}

}  // namespace vendrel
