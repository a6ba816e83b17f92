#include "platform/Form.h"

#include "platform/Berichten.h"
#include "platform/ImageButton.h"
#include "platform/Twips.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QMenuBar>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

// What the classic frame takes of a window's outer size, in twips.
static constexpr int FrameWidth = 90;
static constexpr int FrameHeight = 450;
static constexpr int MenuHeight = 300;

Form::Form(const QString &naam, const QString &titel, int breedte, int hoogte, QRgb achtergrond, bool menuBalk)
    : QDialog(QApplication::activeWindow()), inhoud_(new QWidget)
{
    setObjectName(naam);
    setWindowTitle(titel);
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
    const QSize maat = inhoud_->size() + QSize(0, menuBalk_->sizeHint().height());
    const QSize frame(Twips::NaarPixels(FrameWidth), Twips::NaarPixels(FrameHeight));
    setMaximumSize(maat);
    resize(maat.boundedTo(screen()->availableSize() - frame));
}

void Form::Voer(const QString &naam, const std::function<void()> &handler)
{
    try {
        handler();
    } catch (const Afgebroken &) {
        // closed while it waited: nothing to say
    } catch (const Fout &fout) {
        MsgBox(u"Fout %1 bij %2: %3."_s.arg(fout.nummer()).arg(naam, fout.tekst()), Knoppen::Ok, Icoon::Kritiek);
    } catch (const std::bad_alloc &) {
        const Fout vol(Fout::GeheugenVol);
        MsgBox(u"Fout %1 bij %2: %3."_s.arg(vol.nummer()).arg(naam, vol.tekst()), Knoppen::Ok, Icoon::Kritiek);
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

ImageButton *Form::MaakOkKnop()
{
    return Maak<ImageButton>("OkKnop", u"Ok"_s, nullptr, u"knop-ok"_s);
}

ImageButton *Form::MaakCancelKnop()
{
    return Maak<ImageButton>("CancelKnop", u"Annuleren"_s, nullptr, u"knop-annuleren"_s);
}

QList<QRadioButton *> Form::MaakOpties(const QStringList &opschriften)
{
    QList<QRadioButton *> opties;
    for (const QString &opschrift : opschriften) {
        opties += Maak<QRadioButton>("", opschrift, nullptr, opschrift);
        opties.last()->setObjectName(u"Option%1"_s.arg(opties.size()));
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

QComboBox *Form::MaakNummers(const char *naam, const QString &leesnaam, int van, int tot, int nu)
{
    auto *combo = Maak<QComboBox>(naam, leesnaam, nullptr);
    for (int nummer = van; nummer <= tot; ++nummer)
        combo->addItem(QString::number(nummer));
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    combo->setEditText(QString::number(nu));
    return combo;
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

void Form::Kleur(QWidget *control, QRgb achter, QRgb voor)
{
    QPalette palet = control->palette();
    palet.setColor(QPalette::Base, achter);
    palet.setColor(QPalette::Text, voor);
    palet.setColor(QPalette::Disabled, QPalette::Text, qRgb(120, 120, 120));
    control->setPalette(palet);
}
