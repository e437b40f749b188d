// The About window: what the program is for, how exact it is and what it leaves out.
#pragma once

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include <array>
#include <vector>

namespace tarvix {

class AboutBox : public QDialog {
  public:
    explicit AboutBox(QWidget* parent = nullptr);

    void Form_Load();
    void cmdExit_Click();

    QFrame* const Frame1;  // purpose and accuracy
    QFrame* const Frame2;  // what it is not for, and where to ask
    QPushButton* const cmdExit;

  private:
    // Label1 to Label18.
    static constexpr int kLabels = 18;

    QLabel& Label(int number) { return *labels_.at(static_cast<std::size_t>(number - 1)); }
    void LayOut();
    // Puts labels into a frame, paragraph by paragraph.
    void Fill(QFrame& frame, const std::vector<std::vector<int>>& paragraphs);

    // As large as the texts, or as the screen allows; the texts scroll then.
    void FitToScreen();

    QScrollArea* const texts_;
    std::array<QLabel*, kLabels> labels_{};
};

}  // namespace tarvix
