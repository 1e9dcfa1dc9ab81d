#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vendrel {

/// Reads a text field by field. Commas and line ends separate fields, blanks before a field are
/// skipped, and a field that begins with a double quote runs to the next one (so it may hold
/// commas), behind which it must end. Lines tie nothing together: six fields are six fields
/// wherever the line ends fall.
class FieldReader {
  public:
    /// `text` as UTF-8; must outlive the reader. `file` is named in errors.
    FieldReader(std::string_view text, std::filesystem::path file);

    /// The next field as text, without its quotes. Throws FormatError at the end of the file;
    /// `what` names the field in the error ("a paint name").
    [[nodiscard]] std::string ReadText(const char* what);
    /// The next field as a whole number from `min` to `max`. Throws FormatError.
    [[nodiscard]] int ReadInt(const char* what, int min, int max);

    /// The first and the last line of what is left besides blanks and line ends, from 1; 0 when
    /// nothing is.
    struct LineRange {
        int First = 0;
        int Last = 0;
    };
    [[nodiscard]] LineRange LinesLeft() const;
    /// Line of the field read last, from 1.
    [[nodiscard]] int Line() const { return fieldLine_; }
    [[nodiscard]] const std::filesystem::path& File() const { return file_; }

  private:
    [[nodiscard]] std::string_view ReadField(const char* what);
    [[nodiscard]] std::string_view ReadQuoted(const char* what);
    void SkipBlanks();
    void SkipSeparator();

    std::string_view text_;
    std::filesystem::path file_;
    std::size_t at_ = 0;
    int line_ = 1;
    int fieldLine_ = 1;
};

}  // namespace vendrel
