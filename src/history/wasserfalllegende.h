#pragma once

#include <QWidget>

namespace varnoth {

/// Says what the patterns of a waterfall mean: each with its word, on as many lines as it takes.
class Wasserfalllegende : public QWidget {
public:
    explicit Wasserfalllegende(QWidget* eltern = nullptr);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int breite) const override;
    QSize sizeHint() const override;
    /// Words are made anew: the language has changed.
    void Lokalisiere();

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    /// Where the entries lie in a width; gives the height.
    template<class Tat>
    int Ordne(int breite, Tat tat) const;
};

} // namespace varnoth
