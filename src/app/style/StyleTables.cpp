#include "app/style/StyleTables.h"

namespace tw::app::style {

namespace {

constexpr QStringView notManners[] = {
    u"only",      u"ally",     u"rally",      u"tally",      u"bully",       u"belly",     u"jelly",
    u"folly",     u"holly",    u"gully",      u"dolly",      u"filly",       u"lily",      u"doily",
    u"family",    u"apply",    u"reply",      u"supply",     u"comply",      u"imply",     u"multiply",
    u"monopoly",  u"assembly", u"anomaly",    u"homily",     u"panoply",     u"friendly",  u"lonely",
    u"lovely",    u"likely",   u"lively",     u"lowly",      u"homely",      u"comely",    u"costly",
    u"deadly",    u"deathly",  u"earthly",    u"elderly",    u"ghastly",     u"ghostly",   u"godly",
    u"gnarly",    u"grisly",   u"heavenly",   u"kingly",     u"knightly",    u"leisurely", u"manly",
    u"measly",    u"miserly",  u"motherly",   u"neighborly", u"orderly",     u"prickly",   u"princely",
    u"queenly",   u"saintly",  u"scholarly",  u"seemly",     u"shapely",     u"sickly",    u"sisterly",
    u"smelly",    u"stately",  u"surly",      u"timely",     u"ugly",        u"unlikely",  u"unruly",
    u"wobbly",    u"worldly",  u"silly",      u"chilly",     u"hilly",       u"curly",     u"burly",
    u"holy",      u"oily",     u"early",      u"daily",      u"weekly",      u"monthly",   u"yearly",
    u"nightly",   u"hourly",   u"quarterly",  u"really",     u"basically",   u"actually",  u"literally",
    u"simply",    u"honestly", u"definitely", u"certainly",  u"essentially", u"virtually", u"completely",
    u"extremely", u"entirely", u"absolutely", u"totally",    u"utterly",
};

constexpr QStringView auxiliaries[] = {
    u"am", u"is", u"are", u"was", u"were", u"be", u"been", u"being",
};

constexpr QStringView participles[] = {
    u"written", u"spoken",     u"taken",  u"given",  u"done",    u"made",      u"seen",   u"known",
    u"shown",   u"held",       u"told",   u"found",  u"brought", u"thought",   u"caught", u"taught",
    u"built",   u"sent",       u"kept",   u"left",   u"felt",    u"put",       u"set",    u"born",
    u"borne",   u"worn",       u"torn",   u"drawn",  u"grown",   u"thrown",    u"blown",  u"flown",
    u"chosen",  u"frozen",     u"broken", u"stolen", u"driven",  u"forgotten", u"hidden", u"bitten",
    u"beaten",  u"eaten",      u"fallen", u"risen",  u"ridden",  u"gone",      u"begun",  u"sung",
    u"become",  u"understood", u"stood",  u"won",    u"lost",    u"bound",     u"ground", u"wound",
    u"shot",    u"sought",     u"fought", u"sold",   u"dealt",   u"meant",     u"hung",   u"laid",
    u"paid",    u"said",       u"lit",    u"split",  u"spread",  u"swept",     u"struck", u"stuck",
    u"slain",   u"sworn",      u"read",   u"led",    u"met",
};

constexpr Phrase cliches[] = {
    {u"at the end of the day", u"ultimately"},
    {u"think outside the box", u"think creatively"},
    {u"the tip of the iceberg", u"only a small part of it"},
    {u"a needle in a haystack", u""},
    {u"avoid like the plague", u"shun"},
    {u"in the nick of time", u"barely in time"},
    {u"the calm before the storm", u""},
    {u"a diamond in the rough", u""},
    {u"when all is said and done", u"ultimately"},
    {u"few and far between", u"rare"},
    {u"last but not least", u"finally"},
    {u"easier said than done", u"harder to do than to say"},
    {u"the writing on the wall", u""},
    {u"leave no stone unturned", u"search everywhere"},
    {u"add insult to injury", u"make it worse"},
    {u"back to square one", u"back to the start"},
    {u"the best of both worlds", u""},
    {u"burning the midnight oil", u"working late"},
    {u"cut to the chase", u"get to the point"},
    {u"raining cats and dogs", u"pouring"},
    {u"once in a blue moon", u"rarely"},
    {u"read between the lines", u"infer what is unsaid"},
    {u"beat around the bush", u"evade the question"},
    {u"bite the bullet", u"endure it"},
    {u"break the ice", u"ease the tension"},
    {u"the whole nine yards", u"everything"},
    {u"par for the course", u"typical"},
    {u"hit the nail on the head", u"was exactly right"},
    {u"a blessing in disguise", u"an unexpected benefit"},
    {u"better late than never", u""},
    {u"actions speak louder than words", u""},
    {u"the grass is always greener", u""},
};

constexpr Phrase fillers[] = {
    {u"very", u""},       {u"really", u""},      {u"quite", u""},     {u"rather", u""},
    {u"somewhat", u""},   {u"actually", u""},    {u"basically", u""}, {u"literally", u""},
    {u"simply", u""},     {u"just", u""},        {u"totally", u""},   {u"definitely", u""},
    {u"certainly", u""},  {u"essentially", u""}, {u"virtually", u""}, {u"honestly", u""},
    {u"absolutely", u""}, {u"completely", u""},  {u"extremely", u""}, {u"entirely", u""},
    {u"utterly", u""},    {u"kind of", u""},     {u"sort of", u""},
};

constexpr Phrase wordy[] = {
    {u"in order to", u"to"},
    {u"due to the fact that", u"because"},
    {u"in spite of the fact that", u"although"},
    {u"in the event that", u"if"},
    {u"at this point in time", u"now"},
    {u"at the present time", u"now"},
    {u"for the purpose of", u"for"},
    {u"a large number of", u"many"},
    {u"the majority of", u"most"},
    {u"a majority of", u"most"},
    {u"with regard to", u"about"},
    {u"in reference to", u"about"},
    {u"in the near future", u"soon"},
    {u"on a regular basis", u"regularly"},
    {u"prior to", u"before"},
    {u"subsequent to", u"after"},
    {u"as a matter of fact", u"in fact"},
    {u"each and every", u"every"},
    {u"has the ability to", u"can"},
    {u"is able to", u"can"},
    {u"take into consideration", u"consider"},
    {u"in a timely manner", u"promptly"},
};

} // namespace

std::span<const QStringView> adverbExceptions()
{
    return notManners;
}

std::span<const QStringView> auxiliaryVerbs()
{
    return auxiliaries;
}

std::span<const QStringView> irregularParticiples()
{
    return participles;
}

std::span<const Phrase> clichePhrases()
{
    return cliches;
}

std::span<const Phrase> fillerPhrases()
{
    return fillers;
}

std::span<const Phrase> wordyPhrases()
{
    return wordy;
}

} // namespace tw::app::style
