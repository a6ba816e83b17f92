#include "platform/Form.h"

#include "platform/Berichten.h"
#include "platform/Fout.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "platform/ScrollBar.h"
#include "platform/Twips.h"
#include "platform/Uiterlijk.h"
#include "platform/WachtBij.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

// What the classic frame takes of a window's outer size, in twips.
static constexpr int FrameWidth = 90;
static constexpr int FrameHeight = 450;
static constexpr int MenuHeight = 300;

Form::Form(const QString &naam, const QString &titel, int breedte, int hoogte, QRgb achtergrond, bool menuBalk)
    : QDialog(Eigenaar()), inhoud_(new QWidget)
{
    setObjectName(naam);
    setWindowTitle(titel);
    AlsDialoog(*this);
    QPalette palet = palette();
    palet.setColor(QPalette::Window, achtergrond);
    setPalette(palet);
    connect(this, &QDialog::finished, this, [this] { unloaded_ = true; }); // also when the person closes it

    const QSize maat(Twips::NaarPixels(breedte - FrameWidth),
                     Twips::NaarPixels(hoogte - FrameHeight - (menuBalk ? MenuHeight : 0)));
    inhoud_->setFixedSize(maat);
    auto *opmaak = new QVBoxLayout(this);
    opmaak->setContentsMargins(0, 0, 0, 0);
    if (!menuBalk) {
        opmaak->addWidget(inhoud_);
        setFixedSize(maat);
        return;
    }
    menuBalk_ = new QMenuBar;
    opmaak->setMenuBar(menuBalk_);
    auto *rol = new QScrollArea;
    rol->setFrameShape(QFrame::NoFrame);
    rol->setFocusPolicy(Qt::NoFocus);
    rol->setWidget(inhoud_);
    opmaak->addWidget(rol);
}

void Form::PasOpScherm()
{
    const double ratio = devicePixelRatioF();
    // At a scale that is no whole number a window may come out a part of a pixel short, and would scroll.
    const int speling = ratio == std::floor(ratio) ? 0 : 1;
    const QSize maat = inhoud_->size() + QSize(speling, menuBalk_->sizeHint().height() + speling);
    const QSize frame(Twips::NaarPixels(FrameWidth), Twips::NaarPixels(FrameHeight));
    setMaximumSize(maat);
    resize(maat.boundedTo(screen()->availableSize() - frame));
}

// A window comes in the middle, where a tall one would have its title above the screen.
void Form::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    const int rand = Twips::NaarPixels(FrameWidth) / 2;
    const QPoint eerste = screen()->availableGeometry().topLeft() + QPoint(rand, Twips::NaarPixels(FrameHeight) - rand);
    move(std::max(x(), eerste.x()), std::max(y(), eerste.y()));
}

void Form::MaakRekbaar()
{
    PasOpScherm();
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    inhoud_->setMinimumSize(1, 1);
    inhoud_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    static_cast<QScrollArea *>(layout()->itemAt(0)->widget())->setWidgetResizable(true);
}

int Form::Width() const
{
    return static_cast<int>(Twips::VanPixels(width())) + FrameWidth;
}

int Form::Height() const
{
    const int inhoud = height() - menuBalk_->sizeHint().height();
    return static_cast<int>(Twips::VanPixels(inhoud)) + FrameHeight + MenuHeight;
}

void Form::Voer(const QString &naam, const std::function<void()> &handler)
{
    try {
        handler();
    } catch (const Afgebroken &) {
        // closed while it waited: nothing to say
    } catch (const std::exception &exception) {
        const Fout fout = Fout::Van(exception);
        const QString tekst = fout.tekst();
        const QString punt = tekst.endsWith(u'.') ? QString() : u"."_s; // a component's text is a sentence already
        MsgBox(u"Fout %1 bij %2: %3%4"_s.arg(fout.nummer()).arg(naam, tekst, punt), Knoppen::Ok, Icoon::Kritiek);
    }
}

QString Form::Wat(const QObject *zender)
{
    QString naam;
    if (const auto *control = qobject_cast<const QWidget *>(zender))
        naam = control->accessibleName();
    else if (const auto *item = qobject_cast<const QAction *>(zender))
        naam = item->text();
    return u'\'' + (naam.isEmpty() ? zender->objectName() : naam) + u'\'';
}

void Form::Unload()
{
    unloaded_ = true;
    close();
}

// A label has no accessible name of its own: it is read as what it shows, also when its caption has changed.
Label *Form::MaakLabel(const char *naam, const QString &caption, QWidget *ouder)
{
    return Maak<Label>(naam, QString(), ouder, caption);
}

Label *Form::MaakUitleg(const char *naam, const QString &tekst, QWidget *ouder)
{
    Label *label = MaakLabel(naam, tekst, ouder);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

ImageBox *Form::MaakBeeld(const char *naam, const QString &leesnaam, const QString &plaatje, QWidget *ouder)
{
    return Maak<ImageBox>(naam, leesnaam, ouder, plaatje);
}

ImageButton *Form::MaakKnop(const char *naam, const QString &leesnaam, const QString &plaatje, QWidget *ouder)
{
    return Maak<ImageButton>(naam, leesnaam, ouder, plaatje);
}

ImageButton *Form::MaakKnopMetTip(const char *naam, const QString &tip, const QString &plaatje, QWidget *ouder)
{
    ImageButton *knop = MaakKnop(naam, tip.trimmed(), plaatje, ouder);
    knop->setToolTip(tip);
    return knop;
}

ImageButton *Form::MaakOkKnop()
{
    return MaakKnop("OkKnop", u"Ok"_s, u"knop-ok"_s);
}

ImageButton *Form::MaakCancelKnop()
{
    return MaakKnop("CancelKnop", u"Annuleren"_s, u"knop-annuleren"_s);
}

QList<QRadioButton *> Form::MaakOpties(const QStringList &opschriften, QWidget *ouder)
{
    QList<QRadioButton *> opties;
    for (const QString &opschrift : opschriften) {
        auto *optie = Maak<QRadioButton>("", opschrift, ouder, opschrift);
        opties += optie;
        optie->setObjectName(u"Option%1"_s.arg(opties.size()));
        optie->setFocusPolicy(Qt::ClickFocus);
        connect(optie, &QRadioButton::toggled, optie, [optie](bool aan) {
            optie->setFocusPolicy(aan ? Qt::StrongFocus : Qt::ClickFocus); // Tab goes to the chosen one alone
        });
    }
    opties.first()->setChecked(true);
    return opties;
}

int Form::Gekozen(const QList<QRadioButton *> &opties)
{
    int index = 0;
    while (!opties[index]->isChecked())
        ++index;
    return index;
}

void Form::bijOpties(const QList<QRadioButton *> &opties, const std::function<void(int)> &handler)
{
    for (int i = 0; i < opties.size(); ++i)
        bij(opties[i], &QRadioButton::toggled, [handler, i](bool aan) {
            if (aan)
                handler(i);
        });
}

/// Puts the list of a box at the text that stands in it, so that Up and Down give the neighbours.
static void VolgTekst(QComboBox &combo)
{
    if (combo.itemText(combo.currentIndex()) == combo.currentText())
        return; // it may be the second one of a name
    const int index = combo.findText(combo.currentText());
    if (index < 0)
        return;
    const QSignalBlocker stil(combo);
    const int cursor = combo.lineEdit()->cursorPosition();
    combo.setCurrentIndex(index);
    combo.lineEdit()->setCursorPosition(cursor);
}

QComboBox *Form::MaakKeuze(const char *naam, const QString &leesnaam, const QStringList &items, const QString &nu)
{
    auto *combo = Maak<QComboBox>(naam, leesnaam);
    combo->addItems(items);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    combo->setEditText(nu);
    VolgTekst(*combo);
    connect(combo, &QComboBox::editTextChanged, combo, [combo] { VolgTekst(*combo); });
    return combo;
}

QComboBox *Form::MaakNummers(const char *naam, const QString &leesnaam, int van, int tot, int nu)
{
    QStringList nummers;
    for (int nummer = van; nummer <= tot; ++nummer)
        nummers += QString::number(nummer);
    return MaakKeuze(naam, leesnaam, nummers, QString::number(nu));
}

QScrollBar *Form::MaakSchuif(const char *naam, const QString &leesnaam, int van, int tot, QWidget *ouder)
{
    auto *schuif = Maak<ScrollBar>(naam, leesnaam, ouder, Qt::Horizontal);
    schuif->setRange(van, tot);
    schuif->setPageStep(1);
    return schuif;
}

void Form::Zet(QWidget *control, int links, int boven)
{
    if (!qobject_cast<QLabel *>(control))
        control->resize(control->sizeHint());
    control->move(Twips::NaarPixels(links), Twips::NaarPixels(boven));
}

void Form::Zet(QWidget *control, int links, int boven, int breedte, int hoogte)
{
    control->setGeometry(Twips::NaarPixels(links), Twips::NaarPixels(boven), Twips::NaarPixels(breedte),
                         Twips::NaarPixels(hoogte));
}

void Form::Zet(Label *label, int links, int boven, int breedte, int hoogte)
{
    label->AutoSize = false;
    Zet(static_cast<QWidget *>(label), links, boven, breedte, hoogte);
}

void Form::Wacht(double seconden)
{
    WachtBij(*this, seconden);
}

void Form::Sluit(ImageButton *knop, double wachttijd)
{
    knop->Druk();
    if (wachttijd > 0)
        Wacht(wachttijd);
    Unload();
}

void Form::Kleur(QWidget *control, QRgb achter, QRgb voor)
{
    QPalette palet = control->palette();
    palet.setColor(QPalette::Base, achter);
    palet.setColor(QPalette::Text, voor);
    palet.setColor(QPalette::Disabled, QPalette::Text, qRgb(120, 120, 120));
    control->setPalette(palet);
}

QMenu *Form::MaakMenu(const char *naam, const QString &opschrift)
{
    QMenu *menu = menuBalk_->addMenu(opschrift);
    menu->setObjectName(QLatin1String(naam));
    return menu;
}

QAction *MaakItem(QWidget &menu, const char *naam, const QString &opschrift)
{
    auto *item = new QAction(opschrift, &menu);
    item->setObjectName(QLatin1String(naam));
    menu.addAction(item);
    return item;
}
