// The tips: one picture with a title and a few words at a time, with buttons and dots to turn the
// pages. Main thread only.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <functional>

namespace nerlo::shell {

// A row of dots, one for each page; the present one is filled.
class PageDots final : public QWidget {
    Q_OBJECT

  public:
    explicit PageDots(int count);
    void setCurrent(int page);
    QSize sizeHint() const override;

  signals:
    void clicked(int page);

  protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

  private:
    int count_;
    int current_ = 0;
};

class TipsWindow final : public QDialog {
    Q_OBJECT

  public:
    // `closed` is told whether the tips shall be shown at the next start.
    TipsWindow(bool atEachStart, std::function<void(bool atEachStart)> closed);

    static int count();
    int page() const { return page_; }
    void setPage(int page);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

  private:
    void showPage();

    std::function<void(bool)> closed_;
    int page_ = 0;
    QLabel *picture_;
    QLabel *title_;
    QLabel *text_;
    PageDots *dots_;
    QPushButton *previous_;
    QPushButton *next_;
    QCheckBox *atEachStart_;
};

} // namespace nerlo::shell
