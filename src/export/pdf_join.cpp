#include "export/pdf_join.h"

#include <memory>
#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageLabelDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <span>
#include <string>

#include "support/error.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// Page by page onto the disk: a print run may be larger than the memory.
class IntoFile : public Pipeline {
  public:
    explicit IntoFile(const fs::path& target) : Pipeline("file", nullptr), file_(target) {}

    void write(const unsigned char* data, std::size_t size) override {
        file_.Write(std::as_bytes(std::span(data, size)));
    }
    void finish() override {}
    void Commit() { file_.Commit(); }

  private:
    WholeFile file_;
};

class PdfJoiner {
  public:
    PdfJoiner() {
        joined_.emptyPDF();
        bookmarks_ = joined_.makeIndirectObject(QPDFObjectHandle::newDictionary());
        bookmarks_.replaceKey("/Type", QPDFObjectHandle::newName("/Outlines"));
        joined_.getRoot().replaceKey("/Outlines", bookmarks_);
    }

    void Add(const fs::path& file) {
        QPDF& one = *parts_.emplace_back(std::make_unique<QPDF>());
        try {
            one.processFile(file.c_str());
            TakePages(one, file.stem().string());
        } catch (const QPDFExc& error) {
            throw FileError(file, "cannot be joined with the others (" + error.getMessageDetail() +
                                      "). Remove it to have it made again.");
        }
    }

    void Write(const fs::path& target) {
        IntoFile out(target);
        QPDFWriter writer(joined_);
        writer.setOutputPipeline(&out);
        writer.setDeterministicID(true);
        writer.setMinimumPDFVersion("1.4");  // as its parts have
        writer.write();
        out.Commit();
    }

  private:
    void TakePages(QPDF& one, const std::string& name) {
        QPDFPageDocumentHelper pages(joined_);
        bool first = true;
        for (QPDFPageObjectHelper& page : QPDFPageDocumentHelper(one).getAllPages()) {
            pages.addPage(page, false);
            if (first) {
                AddBookmark(name, pages.getAllPages().back().getObjectHandle());
            }
            first = false;
        }
        QPDFObjectHandle meaning = one.getRoot().getKey("/OutputIntents");
        if (!joined_.getRoot().hasKey("/OutputIntents") && meaning.isArray()) {
            TakeColors(meaning);
        }
    }

    // What the colors mean is the same in all of them.
    void TakeColors(QPDFObjectHandle meaning) {
        QPDFObjectHandle intents = QPDFObjectHandle::newArray();
        for (int i = 0; i < meaning.getArrayNItems(); ++i) {
            QPDFObjectHandle intent = meaning.getArrayItem(i);
            if (!intent.isIndirect()) {
                intent = meaning.getOwningQPDF()->makeIndirectObject(intent);
            }
            intents.appendItem(joined_.copyForeignObject(intent));
        }
        joined_.getRoot().replaceKey("/OutputIntents", intents);
    }

    void AddBookmark(const std::string& name, const QPDFObjectHandle& page) {
        QPDFObjectHandle mark = joined_.makeIndirectObject(QPDFObjectHandle::newDictionary());
        mark.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(name));
        mark.replaceKey("/Parent", bookmarks_);
        mark.replaceKey("/Dest",
                        QPDFObjectHandle::newArray({page, QPDFObjectHandle::newName("/Fit")}));
        if (last_.isInitialized()) {
            last_.replaceKey("/Next", mark);
            mark.replaceKey("/Prev", last_);
        } else {
            bookmarks_.replaceKey("/First", mark);
        }
        bookmarks_.replaceKey("/Last", mark);
        bookmarks_.replaceKey("/Count", QPDFObjectHandle::newInteger(++count_));
        last_ = mark;
    }

    QPDF joined_;
    std::vector<std::unique_ptr<QPDF>> parts_;  // read from while the whole is written
    QPDFObjectHandle bookmarks_;
    QPDFObjectHandle last_;
    int count_ = 0;
};

}  // namespace

void JoinPdfs(const std::vector<fs::path>& files, const fs::path& target) {
    PdfJoiner joiner;
    for (const fs::path& file : files) {
        joiner.Add(file);
    }
    joiner.Write(target);
}

}  // namespace vendrel
