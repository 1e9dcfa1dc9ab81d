#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "support/color.h"

namespace vendrel {

/// `vendrel paints`: what there is, what is owned, and what changes that.
struct PaintsOptions {
    std::filesystem::path Folder = ".";
    bool OwnedOnly = false;
    std::optional<Color> Near;           // the nearest to it first
    std::string Missing;                 // a kit
    std::filesystem::path Import;        // a list of paints
    std::string Take;                    // of the list: "exact", "all" or numbers of lines
    std::vector<std::string> Label;      // "paint=label"
    std::filesystem::path AddCatalogue;  // a table
    std::string Columns;                 // of it
    std::filesystem::path Stickers;      // a PDF to write
    std::string Sheet;                   // of labels
    int Used = 0;                        // labels of the first sheet
    bool Json = false;
};

/// `vendrel shop`: what kits ask to be bought.
struct ShopOptions {
    std::filesystem::path Folder = ".";
    std::vector<std::string> Kits;
    std::filesystem::path Csv;
    std::filesystem::path Pdf;  // the same as a page to print
    bool Painted = false;
    bool Undo = false;
    bool Json = false;
};

void AddPaintsOptions(CLI::App& app, PaintsOptions& paints);
void AddShopOptions(CLI::App& app, ShopOptions& shop);

/// Throw UsageError for options that do not go together.
void RequireOneTask(const PaintsOptions& paints);
void RequireOneTask(const ShopOptions& shop);

}  // namespace vendrel
