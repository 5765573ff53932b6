// versions: 6-8
// Short names of classes: imports of one and of packages, classes of one package.
class zoo.Cat { function say() { return "cat"; } }
class zoo.Lion extends Cat { function say() { return "lion of " + super.say(); } static function make() { return new Lion(); } function mate() { return new Cat(); } }
import zoo.*;
trace(new Lion().say());     //= lion of cat
trace(Lion.make().mate().say()); //= cat
class zoo.Bear { }
trace(new Bear() instanceof zoo.Bear); //= true
class other.Bear { static var n = 7; }
import other.Bear;
trace(Bear.n);               //= 7
function hides(Bear) { return Bear; }
trace(hides("parameter"));   //= parameter
_global.far = {};
_global.far.Off = function (n) { this.n = n; };
import far.Off;
o = new Off(3);
trace(Off(o).n);             //= 3
trace(Off(5) === null);      //=6-6 false
                             //=7+ true
function isOff() { return far.Off === Off; }
trace(isOff());              //= true
