// versions: 5-8
// What versions make of values in other clothes.
var nothing;
trace(nothing + "");       //=-6 
                           //=7+ undefined
trace("[" + nothing + "]"); //=-6 []
                           //=7+ [undefined]
trace(nothing + 1);        //=-6 1
                           //=7+ NaN
trace(Number(nothing));    //=-6 0
                           //=7+ NaN
trace("abc" * 1);          //= NaN
trace("" * 1);             //= NaN
trace("12" * "2");         //= 24
trace("12" - 2);           //= 10
trace("5" + 3);            //= 53
trace(true + 1);           //= 2
if ("abc") trace("full"); else trace("not full");  //=-6 not full
                           //=7+ full
if ("") trace("full"); else trace("empty");  //= empty
if ("0") trace("zero full"); else trace("zero empty"); //=-6 zero empty
                           //=7+ zero full
t = "abc";
if (t) trace("t"); else trace("no t"); //=-6 no t
                           //=7+ t
trace(!t);                 //=-6 true
                           //=7+ false
trace(typeof 1);           //= number
trace(typeof "a");         //= string
trace(typeof true);        //= boolean
trace(typeof nothing);     //= undefined
trace(typeof null);        //= null
trace(typeof {});          //= object
trace(typeof [1]);         //= object
trace(typeof trace1);      //= undefined
trace(typeof this);        //= movieclip
function f() {}
trace(typeof f);           //= function
trace(void 5);             //=-6 undefined
                           //=7+ undefined
trace(String(true));       //= true
trace(1 == true);          //= true
trace("1" == 1);           //= true
trace(parseInt("0x1F"));   //= 31
trace(1e21 + "");          //= 1e+21
