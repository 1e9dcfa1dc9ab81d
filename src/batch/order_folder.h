#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "batch/batch_options.h"
#include "batch/order.h"

namespace vendrel {

/// Where a batch keeps what it makes, under the folder it works in.
class BatchPlaces {
  public:
    BatchPlaces(std::filesystem::path root, const std::optional<Shard>& part);

    [[nodiscard]] const std::filesystem::path& Root() const { return root_; }
    /// "Orders", which has all of it.
    [[nodiscard]] std::filesystem::path Orders() const { return root_ / "Orders"; }
    /// Of one order, with its results, grid and kit file.
    [[nodiscard]] std::filesystem::path Of(const std::string& order) const;
    /// "Orders/batch.jsonl"; of a shard "Orders/batch-2-of-10.jsonl".
    [[nodiscard]] std::filesystem::path Lines() const { return Orders() / (name_ + ".jsonl"); }
    [[nodiscard]] std::filesystem::path Whole() const { return Orders() / (name_ + ".json"); }
    [[nodiscard]] std::filesystem::path Report() const;
    /// "Orders/paints.csv": what to buy for all of them.
    [[nodiscard]] std::filesystem::path Paints() const;

  private:
    std::filesystem::path root_;
    std::string name_;
};

/// Copies what the painter's own folder has of paints, sets, symbols and templates into an order's,
/// so that its kit is the same wherever and whenever it is made again. Throws FileError.
void CopyData(const std::filesystem::path& root, const std::filesystem::path& orderFolder);

/// Of what all kits of a batch depend on: that data, and the program's version.
[[nodiscard]] std::string SharedInputs(const std::filesystem::path& root, std::string_view version);

/// Of all that a kit depends on: photo, settings, what is shared. Throws FileError when the photo
/// cannot be read.
[[nodiscard]] std::string InputsOf(const Order& order, const std::vector<std::string>& words,
                                   std::string_view shared);

}  // namespace vendrel
