#pragma once

#include <filesystem>
#include <future>
#include <map>
#include <string>
#include <vector>

#include "kitset/kit_list.h"
#include "kitset/kit_lock.h"
#include "kitset/kit_paths.h"
#include "kitset/outputs.h"
#include "kitset/running_sum.h"
#include "shell/ui.h"
#include "support/program_folder.h"

namespace vendrel {

/// The files of one kit on their way to Results: they are written where they wait, and take their
/// places together on Commit. Without it the kit stays as it was and nothing is left. Whenever the
/// program is killed, the kit is whole again after the next start, the old or the new one.
class KitSet {
  public:
    /// Waits for another program that writes the same kit, and ends what a killed one left. Throws
    /// FileError when the other one takes too long or the folders cannot be made.
    KitSet(const ProgramFolder& folder, const KitName& kit, Ui& screen, std::string mark);
    ~KitSet();
    KitSet(const KitSet&) = delete;
    KitSet& operator=(const KitSet&) = delete;

    [[nodiscard]] const KitPaths& Paths() const { return paths_; }
    [[nodiscard]] const std::string& Mark() const { return mark_; }
    /// Where an output is to be written; its folder is there.
    [[nodiscard]] Target Waiting(const Output& output);
    /// The output is written. What the writer showed is summed up already, and the rest is while
    /// the next output is written.
    void Written(const Output& output);
    /// The output stands in its place already and belongs to this kit.
    void Kept(const Output& output);

    /// Writes the list and brings everything to its place. Answers a sentence for each picture in
    /// Results that is not known to belong to this kit. Throws FileError; until the list is
    /// written everything stays as it was, from then on the next start goes on where this ended.
    [[nodiscard]] std::vector<std::string> Commit();

  private:
    [[nodiscard]] std::string OwnSum(const Output& output);
    [[nodiscard]] KitList MergedList(std::vector<std::string>& notes);
    void TakeOver(const Output& output, const KitList& old, KitList& list,
                  std::vector<std::string>& notes);

    KitPaths paths_;
    std::string mark_;
    KitLock lock_;
    std::map<OutputId, RunningSum> running_;
    std::map<OutputId, std::future<std::string>> sums_;
    std::vector<OutputId> own_;  // the files of this kit
    bool waiting_ = true;        // until the list is written
};

}  // namespace vendrel
