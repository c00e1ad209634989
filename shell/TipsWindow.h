// The tips: one picture with a title and a few words at a time, with buttons and dots to turn the
// pages. Main thread only.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
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

    // The first page asks for the rules to begin with, all of them or the gentle ones, of which the
    // former are chosen. With null, which it is at first, nothing is asked.
    void askForRules(std::function<void(bool gentle)> chosen);
    // One line on the first page, on what does not work here; empty for none.
    void setNotice(const QString &text);

    static int count();
    int page() const { return page_; }
    void setPage(int page);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

  private:
    void describeParts();
    void layOut();
    void connectButtons();
    void showPage();
    QWidget *makeQuestion();

    std::function<void(bool)> closed_;
    std::function<void(bool)> rulesChosen_;
    int page_ = 0;
    QLabel *picture_;
    QLabel *title_;
    QLabel *text_;
    QRadioButton *allRules_ = nullptr;
    QLabel *notice_;
    QWidget *question_;
    PageDots *dots_;
    QPushButton *previous_;
    QPushButton *next_;
    QCheckBox *atEachStart_;
};

} // namespace nerlo::shell
