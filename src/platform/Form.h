#pragma once

#include "platform/Label.h"

#include <QDialog>

#include <functional>

class ImageBox;
class ImageButton;
class QAction;
class QComboBox;
class QMenu;
class QMenuBar;
class QRadioButton;
class QScrollBar;

/// A window that places its controls in twips. Built afresh by each opening, on the stack: Toon<VakForm>().
///
/// The outer size is that of a window with the classic frame, 90 twips wide and 450 high together: the client area is
/// the size less that frame, less 300 more with a menu bar.
class Form : public QDialog
{
public:
    /// @param breedte,hoogte outer size in twips
    Form(const QString &naam, const QString &titel, int breedte, int hoogte, QRgb achtergrond, bool menuBalk = false);

    /// Connects a signal with a handler. A failure that the handler lets pass is shown once as a critical message, and
    /// that handler is abandoned; the window and the puzzle stay.
    template <class Zender, class Bron, class... Args, class Handler>
    void bij(Zender *zender, void (Bron::*signaal)(Args...), Handler handler)
    {
        connect(zender, signaal, this, [zender, handler](Args... args) {
            Voer(Wat(zender), [&] {
                if constexpr (std::is_invocable_v<Handler, Args...>)
                    handler(args...);
                else
                    handler();
            });
        });
    }
    /// The same for a handler of the window itself: bij(OkKnop, &ImageButton::clicked, &VakForm::OkKnop_Click)
    template <class Zender, class Bron, class... Args, class Venster, class... Params>
    void bij(Zender *zender, void (Bron::*signaal)(Args...), void (Venster::*handler)(Params...))
    {
        bij(zender, signaal, std::bind_front(handler, static_cast<Venster *>(this)));
    }
    /// The same for a row of options: the handler gets the index of the one that is chosen.
    template <class Venster> void bij(const QList<QRadioButton *> &opties, void (Venster::*handler)(int))
    {
        bijOpties(opties, std::bind_front(handler, static_cast<Venster *>(this)));
    }

    /// Runs one handler as bij does. @param naam what is being done, for the message
    static void Voer(const QString &naam, const std::function<void()> &handler);

    /// What a person would call the sender of a signal, for a message.
    static QString Wat(const QObject *zender);

    /// Closes the window for good.
    void Unload();
    bool Unloaded() const { return unloaded_; }

protected:
    void showEvent(QShowEvent *event) override;

    /// A control on the form (or on another control), with its name and the Dutch name that a screen reader says.
    template <class Control, class... Args>
    Control *Maak(const char *naam, const QString &leesnaam, QWidget *ouder = nullptr, Args &&...args)
    {
        auto *control = new Control(std::forward<Args>(args)..., ouder ? ouder : inhoud_);
        control->setObjectName(QLatin1String(naam));
        control->setAccessibleName(leesnaam);
        return control;
    }
    Label *MaakLabel(const char *naam, const QString &caption, QWidget *ouder = nullptr);
    /// A label with a text to read: wrapped, from the top left of its place.
    Label *MaakUitleg(const char *naam, const QString &tekst, QWidget *ouder = nullptr);
    /// @param plaatje name of the picture
    ImageBox *MaakBeeld(const char *naam, const QString &leesnaam, const QString &plaatje, QWidget *ouder = nullptr);
    ImageButton *MaakKnop(const char *naam, const QString &leesnaam, const QString &plaatje, QWidget *ouder = nullptr);
    /// A button with a tool tip, which is its name for a screen reader too.
    ImageButton *MaakKnopMetTip(const char *naam, const QString &tip, const QString &plaatje, QWidget *ouder = nullptr);
    ImageButton *MaakOkKnop();
    ImageButton *MaakCancelKnop();
    /// The option buttons Option1, Option2 and so on, with these captions; the first one is chosen.
    QList<QRadioButton *> MaakOpties(const QStringList &opschriften, QWidget *ouder = nullptr);
    /// The index of the option that is chosen.
    static int Gekozen(const QList<QRadioButton *> &opties);
    /// A box with a list, in which anything may be typed as well. @param nu what stands in it
    QComboBox *MaakKeuze(const char *naam, const QString &leesnaam, const QStringList &items, const QString &nu);
    /// The same with the numbers from one to another.
    QComboBox *MaakNummers(const char *naam, const QString &leesnaam, int van, int tot, int nu);
    /// A horizontal scroll bar, at its least value, that moves one at a time.
    QScrollBar *MaakSchuif(const char *naam, const QString &leesnaam, int van, int tot, QWidget *ouder = nullptr);

    /// Places a control: left, top, width, height in twips. Without a size it keeps its own.
    static void Zet(QWidget *control, int links, int boven);
    static void Zet(QWidget *control, int links, int boven, int breedte, int hoogte);
    static void Zet(Label *label, int links, int boven, int breedte, int hoogte);
    /// Back and fore colour of a box or a list.
    static void Kleur(QWidget *control, QRgb achter, QRgb voor);

    /// Waits with events running; what comes behind it is left out when the window was closed meanwhile.
    void Wacht(double seconden);
    /// What a cancel button does: press effect, perhaps a further wait, close.
    void Sluit(ImageButton *knop, double wachttijd = 0);

    /// Gives a window with a menu bar its size: the whole, or what the screen has room for; it scrolls then. To be
    /// called when the menu bar is filled.
    void PasOpScherm();
    /// Makes a window with a menu bar one that can be resized, minimised and maximised. In the place of PasOpScherm.
    /// Nothing scrolls: its resizeEvent is to place the controls.
    void MaakRekbaar();
    int Width() const;  ///< outer size in twips, as the constructor takes it; of a window with a menu bar
    int Height() const; ///< the same

    QMenuBar *MenuBalk() const { return menuBalk_; }
    /// A menu at the end of the menu bar.
    QMenu *MaakMenu(const char *naam, const QString &opschrift);

private:
    void bijOpties(const QList<QRadioButton *> &opties, const std::function<void(int)> &handler);

    QWidget *inhoud_;
    QMenuBar *menuBalk_ = nullptr;
    bool unloaded_ = false;
};

/// An item at the end of a menu or of a menu bar.
QAction *MaakItem(QWidget &menu, const char *naam, const QString &opschrift);

/// Opens a form modally and waits until it is closed.
template <class Vorm> void Toon()
{
    Vorm form;
    form.exec();
}
