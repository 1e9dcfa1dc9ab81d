#include "forms/fit_photo.h"

#include <utility>

namespace vendrel {

void FitPhoto::Open(Arrived photo, PhotoFit before, Chosen chosen, CropPhoto::Kept cropped) {
    photo_ = std::move(photo);
    chosen_ = std::move(chosen);
    cropped_ = std::move(cropped);
    fit_.Show(photo_.Name, photo_.Picture, photo_.Size, before);
    place_.Screen.OpenForm(FormId::FitPhoto);
}

void FitPhoto::OKButton_Click() {
    const PhotoFit way = fit_.Way();
    const Surface picture = std::move(photo_.Picture);
    const Chosen chosen = chosen_;
    Close();
    chosen(way, picture);
}

void FitPhoto::CropButton_Click() {
    if (fit_.Controls().CropEnabled) {
        crop_.Open(photo_.Picture, photo_.Stem, [this](const std::string& file) {
            const CropPhoto::Kept cropped = cropped_;
            Close();
            cropped(file);
        });
    }
}

void FitPhoto::Close() {
    place_.Screen.CloseForm(FormId::FitPhoto);
    // A photo is large.
    photo_ = {};
    chosen_ = {};
    cropped_ = {};
}

}  // namespace vendrel
