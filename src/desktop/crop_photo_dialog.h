#pragma once

#include <QLabel>
#include <QPushButton>

#include "desktop/crop_view.h"
#include "desktop/form_dialog.h"
#include "desktop/value_label.h"
#include "forms/crop_photo.h"

namespace vendrel {

/// The crop window over the photo chooser.
class CropPhotoDialog : public FormDialog {
    Q_OBJECT

  public:
    CropPhotoDialog(const ViewContext& context, QWidget* parent);

    void Mirror() override;

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    void Arrange();
    void Connect();

    CropPhoto& form_;
    CropView* view_;
    ValueLabel* description_;
    QPushButton* turnLeft_;
    QPushButton* turnRight_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
};

}  // namespace vendrel
