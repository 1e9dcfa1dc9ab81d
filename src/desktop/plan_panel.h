#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>
#include <vector>

#include "desktop/shop_face_panel.h"
#include "forms/plan_choice.h"

namespace vendrel {

/// Everything that is chosen for a printed plan, on tabs, so that it fits the smallest screens;
/// what it makes of the painting; and its first page.
class PlanPanel : public QWidget {
    Q_OBJECT

  public:
    /// The page shown is as high as the window's screen leaves room for.
    explicit PlanPanel(const QWidget& window);

    /// A tab in front of the others.
    void PutFirst(QWidget* tab, const QString& title);
    /// Whether there is a plan at all; the first tab stays.
    void SetPlanEnabled(bool on);
    void Mirror(PlanChoice& shown);
    void ShowPage(const QImage& page);
    /// Asks for the first page when nothing has been changed for a moment.
    void AskForPage() { soon_.start(); }
    /// What the Tab key goes through, in order.
    [[nodiscard]] std::vector<QWidget*> Controls() const;

  signals:
    void Chosen(const PlanSettings& wanted);
    /// The first page is wanted, so many pixels at its longer side.
    void PageWanted(int longest);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    using Edit = ShopFacePanel::Edit;

    void Name();
    void AddTab(const QString& title, void (PlanPanel::*fill)(QFormLayout& rows));
    void AddSizes(QFormLayout& rows);
    void AddLooks(QFormLayout& rows);
    void AddPaint(QFormLayout& rows);
    [[nodiscard]] QGroupBox* MakeFigures();
    void ConnectSizes();
    void ConnectLooks();
    void ConnectPaint();
    void ConnectTabs();
    void Change(const Edit& edit);
    void ChangePaper();
    void ChangeCanvas();
    void MirrorSizes(const PlanSettings& settings);
    void MirrorLooks(const PlanSettings& settings);
    void MirrorPaint(const PlanSettings& settings);
    void MirrorFigures(const PlanFigures& figures);
    [[nodiscard]] double Unit() const { return shown_.InInches() ? kMmPerInch : 10; }
    [[nodiscard]] double AreaUnit() const { return shown_.InInches() ? kCm2PerSqIn : 1; }

    PlanSettings shown_;
    double widestCm_ = kLargestCanvasCm;
    QTimer soon_;

    QTabWidget* tabs_;
    std::vector<QWidget*> own_;  // tabs of the plan
    QComboBox* paper_;
    QDoubleSpinBox* paperWidth_;
    QDoubleSpinBox* paperHeight_;
    QRadioButton* legible_;
    QRadioButton* chosenSize_;
    QRadioButton* bothSides_;
    QDoubleSpinBox* width_;
    QDoubleSpinBox* across_;
    QDoubleSpinBox* down_;
    QCheckBox* inches_;
    QDoubleSpinBox* bleed_;
    QComboBox* symbols_;
    QComboBox* lines_;
    QSlider* gray_;
    QSpinBox* coats_;
    QDoubleSpinBox* coverage_;
    QDoubleSpinBox* pot_;
    QCheckBox* bySet_;
    ShopFacePanel* shop_;
    QLabel* page_;
    QLabel* pages_;
    QLabel* canvas_;
    QLabel* smallest_;
    QLabel* effort_;
    QLabel* warning_;
    QGroupBox* figures_;
};

}  // namespace vendrel
