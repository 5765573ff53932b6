// versions: 6-8
// What gets and sets in classes: one of a pair alone, in the base and in the derived class, by super.
class Only { var v = 1; var log = ""; function set p(x) { v = x; } function get r() { return v * 2; } static var s = 1; static function set q(x) { s = x; } }
o = new Only(); o.p = 3; trace(o.v + "," + typeof o.p); //= 3,undefined
o.r = 9; trace(o.r);                 //= 6
Only.q = 5; trace(Only.s);           //= 5
class Price { var n = 10; function get price() { return n; } function set price(v) { n = v; } function get twice() { return price * 2; } }
class Sale extends Price {
  function get price() { return super.price * .5; }
  function raise() { super.price += 10; super.price++; return ++super.price + "," + super.price-- + "," + (super.price = 8) + "," + n; }
  function set twice(v) { price = v / 2; }
  function loop() { for (super.price in {z: 1}) { } return n; }
  function odd() { delete super.price; return typeof super.price; }
}
class Final extends Sale { function get price() { return super.price + 1; } }
s = new Sale(); trace(s.price + "," + s.twice); //= 5,10
s.price = 20; trace(s.n + "," + s.price);       //= 20,10
s.twice = 30; trace(s.n + "," + s.twice);       //= 15,15
trace(s.raise());                    //= 27,27,8,8
trace(s.loop() + s.odd());           //= zstring
f = new Final(); trace(f.price + "," + f.twice); //= 6,12
f.price = 40; trace(f.price + "," + new Sale().price); //= 21,5
class Leaf extends Final { }
leaf = new Leaf(); leaf.price = 100; trace(leaf.price + "," + leaf.n); //= 51,100
seen = ""; for (k in leaf) seen += k; trace(seen.indexOf("__get__")); //= -1
class Calls { function get f() { return function (a) { return "f" + a; }; } }
class Called extends Calls { function get f() { return null; } function go() { return super.f(3); } }
trace(new Called().go());            //= f3
