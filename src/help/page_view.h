#pragma once

#include <QTextBlock>
#include <QTextBrowser>

namespace rqm5 {

/// Shows the pages of the manual and follows the links among them.
class PageView : public QTextBrowser
{
    Q_OBJECT

  public:
    explicit PageView(QWidget* parent);

    /// \param topic  "first-steps.md", "ports.md#linux"
    void ShowTopic(const QString& topic);

    /// The file name of the page shown.
    QString Page() const;

    /// Shows the same page and place in the language of now.
    void ShowLanguage();

    /// Marks every place where one of the words stands.
    void MarkWords(const QStringList& words);

    void SetTextSize(int step);  ///< 0 is the usual size, each step one point
    int TextSize() const { return textSize_; }

  signals:
    void ExternalLinkClicked(const QUrl& link);

  protected:
    /// Follows a link; back and forward go another way, because they bring back the place in the page.
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    /// Pages come in the program's language; pictures that are wider than the page are shown smaller.
    QVariant loadResource(int type, const QUrl& name) override;
    void changeEvent(QEvent* event) override;

  private:
    struct Place
    {
        int headings = 0;
        int blocks = 0;      ///< since the last heading
        qreal scrolled = 0;  ///< how much of the block is above, 0 to 1; a picture is a high one
    };

    void Page_Loaded(const QUrl& url);
    void Link_Clicked(const QUrl& link);
    QVariant Picture(const QString& file) const;
    Place PlaceAtTop() const;
    QTextBlock BlockAt(const Place& place) const;
    void ShowMarks();
    void SetPaletteColours();

    QStringList words_;
    int textSize_ = 0;
};

}  // namespace rqm5
