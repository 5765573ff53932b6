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
// Members of a class before what is imported, and classes that stand later.
import zoo.Lion;
class Keeper { var Lion = "own"; function Cat(x) { return "m" + x; } function go() { return Lion + Cat(1); } }
trace(new Keeper().go());    //= ownm1
class Trainer extends Lion { var Lion = 3; function say() { return super.say() + Lion; } }
trace(new Trainer().say());  //= lion of cat3
import shapes.*;
class shapes.Late { function go() { return new After().n(); } static function cast(o) { return After(o); } }
class shapes.After { function n() { return "after"; } }
trace(new Late().go() + Late.cast(new After()).n()); //= afterafter
function hidesPackage(zoo) { return zoo.Cat(1) + zoo.Lion; }
trace(hidesPackage({Cat: function (x) { return x + 1; }, Lion: "parameter"})); //= 2parameter
class Ball { static var count = 0; var id; function Ball() { count++; id = count; } static function total() { return count; } }
ball = new Ball();
trace(_global.Ball.total()); //= 1
b2 = new _global.Ball(); trace(b2.id); //= 2
